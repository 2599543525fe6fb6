#pragma once

#include "Focus/Judgement.h"

#include <QHash>

#include <optional>

namespace fendrel {

class Worker;

/// Answers that were given before, by subject key, in the file "Verdicts.json". There is no expiry. Main thread; the
/// file is written on the disk worker, where a save that has not begun gives way to a newer one.
class VerdictCache {
public:
    /// Reads the file. A broken entry is skipped; a file that is no JSON object is kept aside.
    VerdictCache(const QString& folder, Worker& disk);

    std::optional<Verdict> find(const QString& key) const;
    void insert(const QString& key, const Verdict& verdict);
    void remove(const QString& key);
    void save();

    /// The file's content: an object with a member for each key.
    static QByteArray encode(const QHash<QString, Verdict>& entries);
    static QHash<QString, Verdict> decode(const QJsonObject& object);

private:
    QString m_path;
    Worker& m_disk;
    QHash<QString, Verdict> m_entries;
};

} // namespace fendrel
