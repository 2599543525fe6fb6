#include "Platform/Linux/Desktop/TrashFolder.h"

#include "Base/Log.h"
#include "Platform/Linux/Applications/ExecLine.h"
#include "Platform/Linux/Applications/WatchableFolder.h"
#include "Platform/Linux/Desktop/BusCall.h"
#include "Platform/Linux/Desktop/TrashContents.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

TrashFolder::TrashFolder(QString home, std::function<std::vector<std::filesystem::path>()> others,
                         Applications& applications, std::shared_ptr<ApplicationCatalog> catalog)
    : m_home(std::move(home)),
      m_others(std::move(others)),
      m_applications(applications),
      m_catalog(std::move(catalog)) {
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        watch();
        look();
    });
    connect(&m_disks, &QFileSystemWatcher::directoryChanged, this, &TrashFolder::look);
    watch();
    look();
}

TrashFolder::~TrashFolder() {
    m_isStopped = true;
}

QString TrashFolder::standardHome() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Trash"_s;
}

void TrashFolder::watch() {
    const QString files = m_home + u"/files"_s;
    QString watched;
    // A folder may be made or go while another one is being watched in its place.
    while (watched != watchable(files)) {
        watched = watchable(files);
        const QStringList before = m_watcher.directories();
        if (before.contains(watched))
            continue;
        if (!before.isEmpty())
            m_watcher.removePaths(before);
        m_watcher.addPath(watched);
    }
}

void TrashFolder::watchDisks(const QStringList& folders) {
    const QStringList before = m_disks.directories();
    bool isLonger = false;
    for (const QString& folder : before) {
        if (!folders.contains(folder))
            m_disks.removePath(folder);
    }
    for (const QString& folder : folders)
        isLonger |= !before.contains(folder) && m_disks.addPath(folder);
    if (isLonger)
        look(); // something may have happened there since the last time
}

std::vector<std::filesystem::path> TrashFolder::all(std::vector<std::filesystem::path> others) const {
    others.emplace_back(QFile::encodeName(m_home).toStdString());
    return others;
}

void TrashFolder::look() {
    m_worker.post(u"look"_s, [this] {
        const auto others = m_others();
        const bool isEmpty = std::ranges::all_of(all(others), trashContents::isEmpty);
        QStringList watched; // each until its folder of files is there
        for (const auto& folder : others)
            watched.append(watchable(QFile::decodeName((folder / "files").c_str())));
        QMetaObject::invokeMethod(
            this,
            [this, isEmpty, watched] {
                watchDisks(watched);
                if (std::exchange(m_isEmpty, isEmpty) != isEmpty)
                    onChanged();
            },
            Qt::QueuedConnection);
    });
}

bool TrashFolder::makeHome() const {
    if (!QFileInfo::exists(m_home) && QDir().mkpath(m_home))
        QFile::setPermissions(m_home, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return QFileInfo(m_home).isDir();
}

void TrashFolder::add(const QStringList& paths, std::function<void(const QStringList& failed)> done) {
    m_worker.post({}, [this, paths, done = std::move(done)]() mutable {
        QStringList failed;
        // Where there is no trash and none can be made, Qt 6.4 moves files into the folder that we were started in.
        const bool hasTrash = makeHome();
        for (const QString& path : paths) {
            if (!hasTrash || !QFile::moveToTrash(path))
                failed.append(path);
        }
        if (!failed.isEmpty())
            qCWarning(logDesktop) << "Couldn't move to the trash:" << failed.size() << "of" << paths.size();
        QMetaObject::invokeMethod(
            this, [done = std::move(done), failed] { done(failed); }, Qt::QueuedConnection);
    });
    look();
}

void TrashFolder::empty(std::function<void(bool)> done) {
    m_worker.post({}, [this, done = std::move(done)]() mutable {
        bool isGone = true;
        for (const auto& folder : all(m_others()))
            isGone = trashContents::remove(folder, m_isStopped) && isGone;
        if (!isGone)
            qCWarning(logDesktop) << "Couldn't empty the trash";
        QMetaObject::invokeMethod(
            this, [done = std::move(done), isGone] { done(isGone); }, Qt::QueuedConnection);
    });
    look();
}

void TrashFolder::open() {
    const QString manager = m_applications.fileManager();
    const auto* entry = m_catalog->entry(manager);
    if (entry == nullptr) {
        qCWarning(logDesktop) << "Couldn't open the trash: there is no file manager";
        return;
    }
    // KDE's programs show the trash by themselves, those that use GIO with a service's help.
    const bool isOfKDE = entry->id.startsWith("org.kde."_L1);
    const bool mayShow = takesAddresses(*entry) || entry->exec.isEmpty();
    const QString daemon = u"org.freedesktop.DBus"_s;
    const auto question =
        QDBusMessage::createMethodCall(daemon, u"/org/freedesktop/DBus"_s, daemon, u"ListActivatableNames"_s);
    m_question = callOnBus(question, {}, [this, manager, isOfKDE, mayShow](const QDBusMessage& reply) {
        const bool hasService = reply.arguments().value(0).toStringList().contains(u"org.gtk.vfs.Daemon"_s);
        if (mayShow && (isOfKDE || hasService)) {
            m_applications.openFiles(manager, {QUrl(u"trash:///"_s)});
            return;
        }
        const QString files = m_home + u"/files"_s;
        QDir().mkpath(files); // there is none before something was thrown away
        m_applications.openFiles(manager, {QUrl::fromLocalFile(files)});
    });
}

} // namespace fendrel
