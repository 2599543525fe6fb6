#include "Platform/Linux/Calendar/CalendarFiles.h"

#include "Base/Log.h"
#include "Platform/Linux/Calendar/ICalendarEdit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QUrl>
#include <QUuid>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 4; // an account, a server's path, a calendar
constexpr qsizetype mostFiles = 50'000;
constexpr qsizetype mostFolders = 1'000; // each is watched
constexpr qint64 largest = 64 << 20;

qint64 nanoseconds(const timespec& time) {
    return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

/// All of it or nothing: what is read in part must not be written back. `size` is what it had when it was looked at.
std::optional<QByteArray> contentOf(const QString& path, qint64 size) {
    QFile file(path);
    if (size > largest || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.readAll();
    return file.error() == QFileDevice::NoError && content.size() == size ? std::optional(content) : std::nullopt;
}

bool isWritable(const QString& path) {
    return access(QFile::encodeName(path).constData(), W_OK) == 0;
}

QString idOf(const QString& path, const QString& key) {
    return QString::fromLatin1(QUrl::toPercentEncoding(path)) + u'/' + key;
}

} // namespace

CalendarFiles::CalendarFiles(CalendarPlaces places) : m_places(std::move(places)) {}

std::optional<CalendarFiles::Stamp> CalendarFiles::stampOf(const QString& path) {
    struct stat facts {};
    if (stat(QFile::encodeName(path).constData(), &facts) != 0 || !S_ISREG(facts.st_mode))
        return {};
    return Stamp{.modified = nanoseconds(facts.st_mtim),
                 .changed = nanoseconds(facts.st_ctim),
                 .size = facts.st_size,
                 .inode = facts.st_ino};
}

void CalendarFiles::lookInto(const QString& folder, int depth, QStringList& files) {
    struct stat facts {};
    const bool isThere = stat(QFile::encodeName(folder).constData(), &facts) == 0;
    if (!isThere || m_folders.size() >= mostFolders || !m_visited.insert({facts.st_dev, facts.st_ino}).second)
        return; // links may lead to one more than once
    m_folders.append(folder);
    // Hidden ones are on their way to their own names, or what another program remembers.
    const auto entries = QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (files.size() >= mostFiles)
            return;
        if (entry.isDir() && depth < deepest)
            lookInto(entry.filePath(), depth + 1, files);
        else if (!entry.isDir() && entry.fileName().endsWith(".ics"_L1, Qt::CaseInsensitive))
            files.append(entry.filePath());
    }
}

void CalendarFiles::look() {
    m_folders.clear();
    m_visited.clear();
    QStringList files;
    for (const QString& path : std::as_const(m_places.paths)) {
        if (QFileInfo(path).isDir()) {
            lookInto(path, 1, files);
        } else {
            m_folders.append(QFileInfo(path).path());
            files.append(path);
        }
    }
    m_folders.removeDuplicates();
    auto before = std::exchange(m_known, {});
    for (const QString& path : std::as_const(files)) {
        const auto stamp = stampOf(path);
        if (!stamp)
            continue;
        if (auto known = before.find(path); known != before.end() && known->second.stamp == *stamp)
            m_known.insert(before.extract(known));
        else if (const auto content = contentOf(path, stamp->size))
            m_known.emplace(path, Known{.stamp = *stamp, .calendar = ICalendar(*content)});
    }
}

CalendarReader CalendarFiles::readerOf(const QString& path) const {
    CalendarReader reader{.addresses = m_places.addresses};
    // The calendar that belongs to an account is often named by its address.
    if (const QString folder = QFileInfo(path).dir().dirName().toLower(); folder.contains(u'@'))
        reader.addresses.append(folder);
    return reader;
}

QList<CalendarEvent> CalendarFiles::events(WallTime from, WallTime to) {
    look();
    QList<CalendarEvent> all;
    for (auto& [path, known] : m_known) {
        for (CalendarEvent& event : known.calendar.events(from, to, readerOf(path))) {
            event.id = idOf(path, event.id);
            all.append(std::move(event));
        }
    }
    return all;
}

QList<CalendarReminder> CalendarFiles::reminders(WallTime from, WallTime to) {
    look();
    QList<CalendarReminder> all;
    for (auto& [path, known] : m_known) {
        for (CalendarReminder& reminder : known.calendar.reminders(from, to, readerOf(path))) {
            reminder.id = idOf(path, reminder.id);
            all.append(std::move(reminder));
        }
    }
    return all;
}

bool CalendarFiles::replace(const QString& path, const Edit& edit) {
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const auto before = stampOf(path);
        const auto content = before ? contentOf(path, before->size) : std::optional(QByteArray());
        const auto edited = content ? edit(*content) : std::nullopt;
        if (!edited)
            return false;
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(*edited) != edited->size())
            break;
        if (stampOf(path) != before) {
            file.cancelWriting(); // another program was quicker: what it wrote is edited instead
            continue;
        }
        if (file.commit())
            return true;
        break;
    }
    qCWarning(logFiles) << "Couldn't change a calendar's file";
    return false;
}

bool CalendarFiles::complete(const QString& reminderID, WallTime now) {
    const auto slash = reminderID.indexOf(u'/');
    const QString path = QUrl::fromPercentEncoding(reminderID.left(slash).toUtf8());
    const auto key = TaskKey::fromString(reminderID.sliced(slash + 1));
    if (!m_known.contains(path))
        return false;
    return replace(path, [&](const QByteArray& text) -> std::optional<QByteArray> {
        const auto edited = ICalendarEdit::completed(text, key, now, CalendarReader().zone);
        return edited ? std::optional(edited->text) : std::nullopt;
    });
}

bool CalendarFiles::add(const QString& title, QDate due, WallTime now) {
    look();
    const QString uid = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QByteArray task = ICalendarEdit::newTask(uid, title, due, now);
    const auto append = [&task](const QByteArray& text) { return ICalendarEdit::added(text, task); };
    const auto addTo = [&](const QString& folder) { return replace(folder + u'/' + uid + u".ics"_s, append); };

    std::map<QString, int> filesIn;
    for (const auto& [path, known] : m_known)
        ++filesIn[QFileInfo(path).path()];
    for (const auto& [path, known] : m_known) {
        const QFileInfo file(path);
        if (!known.calendar.hasTasks() || !isWritable(path) || !isWritable(file.path()))
            continue;
        const bool isItem = known.calendar.isOnly(file.completeBaseName()) ||
                            (known.calendar.seriesCount() == 1 && filesIn[file.path()] > 1);
        return isItem ? addTo(file.path()) : replace(path, append);
    }
    const QFileInfo place(m_places.paths.value(0)); // perhaps it has gone
    return place.isDir() ? addTo(place.filePath()) : place.isFile() && replace(place.filePath(), append);
}

} // namespace fendrel
