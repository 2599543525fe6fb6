#pragma once

#include "Base/Result.h"
#include "Modes/Mode.h"

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace fendrel {

class Worker;
namespace sqlite {
class Database;
struct Error;
} // namespace sqlite

/// The user's modes on disk: the SQLite file "Modes.store". A damaged file is kept aside and a fresh one begun; a file
/// that cannot be used for another reason is left as it is, and nothing is saved in this run.
class ModeStore {
public:
    /// `folder` is made when it is missing. Without a folder the modes live in memory only.
    /// Widgets for which `isWidget` does not hold are left out of what is read.
    ModeStore(
        const std::optional<QString>& folder, Worker& disk,
        std::function<bool(const QString& widget)> isWidget = [](const QString&) { return true; });

    /// The modes in the user's order; empty when there are none yet or they cannot be read. Blocks on the disk.
    QList<Mode> load();

    /// Makes the store hold exactly these modes, in one transaction, on the disk worker.
    void save(const QList<Mode>& modes);

    /// What the user should know of the store, as a sentence; nothing when all is well.
    const std::optional<QString>& problem() const { return m_problem; }

private:
    void open();
    Result<QList<Mode>, sqlite::Error> read();

    QString m_path;
    Worker& m_disk;
    std::function<bool(const QString&)> m_isWidget;
    std::shared_ptr<sqlite::Database> m_database; ///< shared with the saves on their way
    std::optional<QString> m_problem;
};

} // namespace fendrel
