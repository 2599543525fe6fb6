#include "Platform/Linux/Desktop/AutostartEntry.h"

#include "Base/JsonFile.h"
#include "Base/Log.h"
#include "Platform/Linux/Applications/WatchableFolder.h"
#include "Platform/Linux/Desktop/AutostartFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QStandardPaths>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString fileName = u"/org.fendrel.Fendrel.desktop"_s;

std::optional<QByteArray> content(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.read(64 * 1024); // nobody writes more into one
}

std::optional<QByteArray> firstContent(const QStringList& paths) {
    for (const QString& path : paths) {
        if (auto found = content(path))
            return found;
    }
    return {};
}

} // namespace

AutostartEntry::AutostartEntry(QString folder, const QStringList& others, QString program, Worker& disk)
    : m_path(std::move(folder) + fileName), m_program(std::move(program)), m_disk(disk) {
    for (const QString& other : others)
        m_others.append(other + fileName);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &AutostartEntry::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &AutostartEntry::look);
}

QString AutostartEntry::standardFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/autostart"_s;
}

QStringList AutostartEntry::otherFolders() {
    QStringList folders;
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation).sliced(1))
        folders.append(folder + u"/autostart"_s);
    return folders;
}

bool AutostartEntry::isOn() const {
    if (!m_isOn) {
        watch();
        m_isOn = read();
    }
    return *m_isOn;
}

void AutostartEntry::set(bool on) {
    isOn(); // watches from now on
    m_disk.post(u"autostart"_s, [self = QPointer(this), on, path = m_path, others = m_others, program = m_program] {
        using autostartFile::Change;
        const Change change = autostartFile::change(on, content(path), firstContent(others), program);
        if (change.kind == Change::Kind::write)
            JsonFile::write(path, change.content);
        else if (change.kind == Change::Kind::remove && !QFile::remove(path))
            qCWarning(logDesktop).noquote() << path << "cannot be removed";
        // It may have failed.
        QMetaObject::invokeMethod(qApp, [self] {
            if (self)
                self->look();
        });
    });
    if (std::exchange(m_isOn, on) != on)
        onChanged();
}

void AutostartEntry::look() {
    watch();
    const bool isOnNow = read();
    if (std::exchange(m_isOn, isOnNow) != isOnNow)
        onChanged();
}

/// The folder tells of files that come and go, a file of what is written into it.
void AutostartEntry::watch() const {
    const QStringList before = m_watcher.directories() + m_watcher.files();
    const QString folder = watchable(m_path.section(u'/', 0, -2));
    QStringList wanted{folder};
    if (QFile::exists(m_path))
        wanted.append(m_path);
    for (const QString& path : before) {
        if (!wanted.contains(path))
            m_watcher.removePath(path);
    }
    for (const QString& path : std::as_const(wanted)) {
        if (!before.contains(path))
            m_watcher.addPath(path);
    }
}

bool AutostartEntry::read() const {
    return autostartFile::starts(content(m_path), firstContent(m_others));
}

} // namespace fendrel
