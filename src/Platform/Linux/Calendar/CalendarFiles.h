#pragma once

#include "Platform/Linux/Calendar/CalendarPlaces.h"
#include "Platform/Linux/Calendar/ICalendar.h"

#include <QDate>

#include <sys/types.h>

#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace fendrel {

/// iCalendar files on the disk: one item in each, as programs that sync keep them, or whole calendars. A file is read
/// again when it changed. Blocks; for one thread at a time.
class CalendarFiles {
public:
    explicit CalendarFiles(CalendarPlaces places);

    QList<CalendarEvent> events(WallTime from, WallTime to);
    QList<CalendarReminder> reminders(WallTime from, WallTime to);
    /// The folders that were looked into last.
    const QStringList& folders() const { return m_folders; }

    // Files are replaced in one step and keep their mode. False where that fails, or where there is no such reminder.
    bool complete(const QString& reminderID, WallTime now);
    /// Into the first calendar that has tasks and can be written, else as a new file of the first place.
    bool add(const QString& title, QDate due, WallTime now);

private:
    /// By which a file is known not to have changed.
    struct Stamp {
        qint64 modified{}; ///< nanoseconds
        qint64 changed{};
        qint64 size{};
        quint64 inode{};
        bool operator==(const Stamp&) const = default;
    };
    struct Known {
        Stamp stamp{};
        ICalendar calendar{};
    };
    using Edit = std::function<std::optional<QByteArray>(const QByteArray&)>;

    static std::optional<Stamp> stampOf(const QString& path);
    static bool replace(const QString& path, const Edit& edit);

    void look();
    void lookInto(const QString& folder, int depth, QStringList& files);
    CalendarReader readerOf(const QString& path) const;

    CalendarPlaces m_places;
    QStringList m_folders;
    std::set<std::pair<dev_t, ino_t>> m_visited; ///< folders, by this look
    std::map<QString, Known> m_known;            ///< by path
};

} // namespace fendrel
