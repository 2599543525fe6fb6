#pragma once

#include "Base/Worker.h"
#include "Ports/LoginItem.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel {

/// Start at log-in by an entry in the folder where desktops look for such. The files are looked at when somebody asks
/// for the first time, and watched from then on.
class AutostartEntry : public QObject, public LoginItem {
    Q_OBJECT
public:
    /// `folder` is the user's own, `others` everybody's, the most important first; `disk` outlives this object.
    AutostartEntry(QString folder, const QStringList& others, QString program, Worker& disk);

    static QString standardFolder();
    static QStringList otherFolders();

    bool isOn() const override;
    void set(bool on) override;

private:
    void look();
    void watch() const;
    bool read() const;

    QString m_path;
    QStringList m_others; ///< paths of everybody's files
    QString m_program;
    Worker& m_disk;
    mutable QFileSystemWatcher m_watcher;
    mutable std::optional<bool> m_isOn; ///< nothing while nobody has asked
};

} // namespace fendrel
