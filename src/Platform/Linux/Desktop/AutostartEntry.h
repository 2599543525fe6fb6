#pragma once

#include "Base/Worker.h"
#include "Ports/LoginItem.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace fendrel {

/// Start at log-in by an entry in the folder where desktops look for such. The files are watched, and read and written
/// on the disk worker: until that has answered for the first time, the entry counts as off.
class AutostartEntry : public QObject, public LoginItem {
    Q_OBJECT
public:
    /// `folder` is the user's own, `others` everybody's, the most important first; `disk` outlives this object.
    AutostartEntry(QString folder, const QStringList& others, QString program, Worker& disk);

    static QString standardFolder();
    static QStringList otherFolders();

    bool isOn() const override { return m_isOn; }
    void set(bool on) override;

private:
    struct Found {
        bool isOn{};
        QStringList watched{}; ///< what tells of a change
    };

    void look();
    /// Looks after `change`, which may fail. The key is the disk worker's.
    void ask(const QString& key, const std::function<void()>& change);
    void take(const Found& found);

    QString m_path;
    QStringList m_others; ///< paths of everybody's files
    QString m_program;
    Worker& m_disk;
    QFileSystemWatcher m_watcher;
    bool m_isOn = false;
    int m_lastQuestion = 0; ///< answers to earlier ones are out of date
};

} // namespace fendrel
