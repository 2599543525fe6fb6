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
    look();
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

void AutostartEntry::set(bool on) {
    ask(u"autostart"_s, [on, path = m_path, others = m_others, program = m_program] {
        using autostartFile::Change;
        const Change change = autostartFile::change(on, content(path), firstContent(others), program);
        if (change.kind == Change::Kind::write)
            JsonFile::write(path, change.content);
        else if (change.kind == Change::Kind::remove && !QFile::remove(path))
            qCWarning(logDesktop).noquote() << path << "cannot be removed";
    });
    if (std::exchange(m_isOn, on) != on)
        onChanged();
}

void AutostartEntry::look() {
    ask({}, [] {});
}

void AutostartEntry::ask(const QString& key, const std::function<void()>& change) {
    m_disk.post(key, [self = QPointer(this), change, question = ++m_lastQuestion, path = m_path, others = m_others] {
        change();
        // The folder tells of files that come and go, a file of what is written into it.
        Found found{.isOn = autostartFile::starts(content(path), firstContent(others)),
                    .watched = {watchable(path.section(u'/', 0, -2))}};
        if (QFile::exists(path))
            found.watched.append(path);
        QMetaObject::invokeMethod(qApp, [self, question, found] {
            if (self && question == self->m_lastQuestion)
                self->take(found);
        });
    });
}

void AutostartEntry::take(const Found& found) {
    const QStringList before = m_watcher.directories() + m_watcher.files();
    bool isNew = false;
    for (const QString& path : before) {
        if (!found.watched.contains(path))
            m_watcher.removePath(path);
    }
    for (const QString& path : found.watched) {
        if (!before.contains(path))
            isNew |= m_watcher.addPath(path);
    }
    if (isNew)
        look(); // it may have changed before it was watched
    if (std::exchange(m_isOn, found.isOn) != found.isOn)
        onChanged();
}

} // namespace fendrel
