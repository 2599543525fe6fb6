#pragma once

#include "Base/Handle.h"
#include "Base/Worker.h"
#include "Platform/Linux/Applications/ApplicationCatalog.h"
#include "Ports/Trash.h"

#include <QFileSystemWatcher>
#include <QObject>

#include <atomic>
#include <filesystem>
#include <memory>
#include <vector>

namespace fendrel {

/// The trash that file managers share: the one at home, and those of other disks. One that is made while we run, on a
/// disk that had none or was not there, is found when another one changes, and after what is done here.
class TrashFolder : public QObject, public Trash {
    Q_OBJECT
public:
    /// `others` finds the trash folders of other disks; it is called on a thread of the trash's own.
    TrashFolder(QString home, std::function<std::vector<std::filesystem::path>()> others, Applications& applications,
                std::shared_ptr<ApplicationCatalog> catalog);
    ~TrashFolder() override; ///< what is being deleted stops; what is to be moved still is

    static QString standardHome();

    bool isEmpty() const override { return m_isEmpty; }
    void add(const QStringList& paths, std::function<void(const QStringList& failed)> done) override;
    void open() override;
    void empty(std::function<void(bool)> done) override;

private:
    void watch();
    void watchDisks(const QStringList& folders);
    void look();
    bool makeHome() const; ///< false when there is none, and none can be made
    /// The one at home and these.
    std::vector<std::filesystem::path> all(std::vector<std::filesystem::path> others) const;

    QString m_home;
    std::function<std::vector<std::filesystem::path>()> m_others;
    Applications& m_applications;
    std::shared_ptr<ApplicationCatalog> m_catalog;
    QFileSystemWatcher m_watcher; ///< of the one at home
    QFileSystemWatcher m_disks;   ///< of the others
    Handle m_question;
    bool m_isEmpty = true;
    std::atomic<bool> m_isStopped = false;
    Worker m_worker{QStringLiteral("trash")}; // its jobs use the others
};

} // namespace fendrel
