#include "Platform/Linux/Calendar/ICalendar.h"

#include "Base/Log.h"

#include <QSet>
#include <QUrl>

#include <algorithm>
#include <ctime>
#include <limits>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 day = 86'400;
constexpr qint64 lookAhead = 7 * day; // the minutes and days to come ask for nearly the same
constexpr auto slow = 20ms;           // a sound rule takes a thousandth of that
constexpr auto slowInAll = 2s;

/// Of this thread alone: waiting for others is no rule's fault.
std::chrono::nanoseconds processorTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

LocalSeconds midnight(LocalSeconds local) {
    return local - ((local % day) + day) % day;
}

/// A moment by the clock of a series.
LocalSeconds onClockOf(const CalendarMoment& series, const CalendarMoment& moment, const CalendarZone& users) {
    if (moment.isDate)
        return series.isDate ? moment.local : moment.local + (series.local - midnight(series.local));
    const LocalSeconds local = (series.zone ? *series.zone : users).toLocal(moment.toUtc(users));
    return series.isDate ? midnight(local) : local;
}

WallTime wallTime(UtcSeconds seconds) {
    return WallTime(std::chrono::seconds(seconds));
}

UtcSeconds seconds(WallTime time) {
    return std::chrono::floor<std::chrono::seconds>(time.time_since_epoch()).count();
}

UtcSeconds endOf(const CalendarEntry& entry, LocalSeconds start, const CalendarZone& users) {
    return entry.start.at(start + entry.days * day, users) + entry.seconds;
}

} // namespace

LocalSeconds CalendarEntry::original(const CalendarMoment& seriesStart, const CalendarZone& users) const {
    return onClockOf(seriesStart, recurrence.value_or(start), users);
}

std::optional<SeriesStep> nextInstance(CalendarEntry entry, LocalSeconds after, const CalendarZone& users) {
    constexpr LocalSeconds horizon = 10 * 366 * day;
    const auto isLeftOut = [&](LocalSeconds instance) {
        return std::ranges::any_of(entry.exceptions, [&](const CalendarMoment& each) {
            const LocalSeconds local = onClockOf(entry.start, each, users);
            return each.isDate ? midnight(local) == midnight(instance) : local == instance;
        });
    };
    std::optional<LocalSeconds> next;
    const auto offer = [&](LocalSeconds instance) {
        if (instance > after && (!next || instance < *next) && !isLeftOut(instance))
            next = instance;
    };
    for (RecurrenceRule& rule : entry.rules)
        for (const LocalSeconds each : rule.instances(after + 1, after + horizon, users))
            offer(each);
    if (entry.rules.empty())
        for (const CalendarMoment& each : entry.dates)
            offer(onClockOf(entry.start, each, users));
    if (!next)
        return {};
    SeriesStep step{.next = *next};
    if (!entry.rules.empty())
        step.passed = static_cast<int>(entry.rules.front().instances(entry.start.local, *next - 1, users).size());
    return step;
}

QString TaskKey::toString() const {
    const QString name = QString::fromLatin1(QUrl::toPercentEncoding(uid));
    return original ? name + u'/' + QString::number(*original) : name;
}

TaskKey TaskKey::fromString(const QString& text) {
    const auto slash = text.indexOf(u'/');
    TaskKey key{.uid = QUrl::fromPercentEncoding(text.left(slash).toUtf8())};
    if (slash >= 0)
        key.original = text.sliced(slash + 1).toLongLong();
    return key;
}

ICalendar::ICalendar(const QByteArray& text) {
    QHash<QString, std::size_t> places;
    for (CalendarEntry& entry : readICalendar(text)) {
        const auto known = entry.uid.isEmpty() ? places.cend() : places.constFind(entry.uid);
        const std::size_t place = known == places.cend() ? m_series.size() : *known;
        if (place == m_series.size()) {
            places.insert(entry.uid, place);
            m_series.emplace_back();
        }
        Series& series = m_series[place];
        if (entry.recurrence)
            series.replacements.push_back(std::move(entry));
        else
            series.main = std::move(entry);
    }
}

bool ICalendar::hasTasks() const {
    return std::ranges::any_of(m_series, [](const Series& series) {
        return series.main ? series.main->isTask : series.replacements.front().isTask;
    });
}

bool ICalendar::isOnly(const QString& uid) const {
    return m_series.size() == 1 && m_series.front().main && m_series.front().main->uid == uid;
}

QList<LocalSeconds> ICalendar::findInstances(Series& series, LocalSeconds from, LocalSeconds to,
                                             const CalendarZone& users) {
    CalendarEntry& main = *series.main;
    QSet<LocalSeconds> without;
    QSet<LocalSeconds> daysWithout;
    for (const CalendarMoment& each : main.exceptions)
        each.isDate ? daysWithout.insert(each.local) : without.insert(onClockOf(main.start, each, users));
    for (const CalendarEntry& each : series.replacements)
        without.insert(each.original(main.start, users));
    QSet<LocalSeconds> found{main.start.local};
    for (const CalendarMoment& each : main.dates)
        found.insert(onClockOf(main.start, each, users));
    const auto follow = [&](std::vector<RecurrenceRule>& rules, QSet<LocalSeconds>& into) {
        for (RecurrenceRule& rule : rules) {
            if (m_wasted > slowInAll)
                return;
            const auto before = processorTime();
            const auto instances = rule.instances(from, to, users);
            for (const LocalSeconds each : instances)
                into.insert(each);
            const auto taken = processorTime() - before;
            if (!instances.isEmpty() || taken <= slow)
                continue;
            rule.searchedInVain();
            if ((m_wasted += taken) > slowInAll)
                qCWarning(logFiles) << "A calendar has many rules that never come true; not all were followed";
        }
    };
    follow(main.rules, found);
    follow(main.exceptionRules, without);
    found.removeIf([&](LocalSeconds each) {
        return each < from || each > to || without.contains(each) || daysWithout.contains(midnight(each));
    });
    QList<LocalSeconds> sorted = found.values();
    std::ranges::sort(sorted);
    return sorted;
}

const QList<LocalSeconds>& ICalendar::instances(Series& series, LocalSeconds from, LocalSeconds to,
                                                const CalendarZone& users) {
    if (!series.known || from < series.knownFrom || to > series.knownTo) {
        const CalendarEntry& main = *series.main;
        const bool isSingle = main.rules.empty() && main.dates.isEmpty();
        constexpr auto ever = std::numeric_limits<LocalSeconds>::max();
        series.knownFrom = isSingle ? -ever : from;
        series.knownTo = isSingle ? ever : to + lookAhead;
        series.known = findInstances(series, series.knownFrom, series.knownTo, users);
        if (series.known->size() >= RecurrenceRule::mostInstances)
            series.knownTo = series.known->last();
    }
    return *series.known;
}

QList<ICalendar::Occurrence> ICalendar::occurrences(Series& series, UtcSeconds from, UtcSeconds to,
                                                    const CalendarZone& users) {
    QList<Occurrence> all;
    struct Turn {
        LocalSeconds original{};
        LocalSeconds shift{};
        const CalendarEntry* entry{};
    };
    std::vector<Turn> turns;   // from which on a series is otherwise
    LocalSeconds widest = day; // clocks of the world are less than a day apart
    for (const CalendarEntry& each : series.replacements) {
        const CalendarMoment& clock = series.main ? series.main->start : each.start;
        const LocalSeconds original = each.original(clock, users);
        all.append({.entry = &each, .original = original, .start = each.start.local});
        if (!each.movesFollowing)
            continue;
        turns.push_back({.original = original, .shift = each.start.local - original, .entry = &each});
        widest = std::max(widest, day + std::abs(turns.back().shift) + each.days * day + each.seconds);
    }
    if (!series.main)
        return all;
    std::ranges::sort(turns, {}, &Turn::original);
    const CalendarEntry& main = *series.main;
    const bool isSeries = !main.rules.empty() || !main.dates.isEmpty();
    const LocalSeconds longest = std::max(widest, day + main.days * day + main.seconds);
    const auto& found = instances(series, from - longest, to + widest, users);
    const auto first = std::ranges::lower_bound(found, from - longest);
    for (auto each = first; each != found.end() && *each <= to + widest; ++each) {
        const auto next = std::ranges::upper_bound(turns, *each, {}, &Turn::original);
        Occurrence occurrence{.entry = &main, .start = *each};
        if (isSeries)
            occurrence.original = *each;
        if (next != turns.begin()) {
            occurrence.entry = std::prev(next)->entry;
            occurrence.start = *each + std::prev(next)->shift;
        }
        all.append(occurrence);
    }
    return all;
}

QList<CalendarEvent> ICalendar::events(WallTime from, WallTime to, const CalendarReader& reader) {
    QList<CalendarEvent> found;
    m_wasted = {};
    for (Series& series : m_series) {
        for (const Occurrence& each : occurrences(series, seconds(from), seconds(to), reader.zone)) {
            const CalendarEntry& entry = *each.entry;
            const WallTime start = wallTime(entry.start.at(each.start, reader.zone));
            const WallTime end = wallTime(endOf(entry, each.start, reader.zone));
            const bool overlaps = start < to && (end > from || (start == end && start == from));
            if (entry.isTask || entry.isCancelled || !overlaps)
                continue;
            found.append({.id = TaskKey{.uid = entry.uid, .original = each.original}.toString(),
                          .title = entry.title,
                          .start = start,
                          .end = std::max(start, end),
                          .isAllDay = entry.start.isDate,
                          .isDeclined = std::ranges::any_of(
                              reader.addresses, [&](const QString& own) { return entry.declined.contains(own); }),
                          .location = entry.location,
                          .notes = entry.notes,
                          .url = entry.url});
        }
    }
    return found;
}

QList<CalendarReminder> ICalendar::reminders(WallTime from, WallTime to, const CalendarReader& reader) {
    QList<CalendarReminder> found;
    m_wasted = {};
    for (Series& series : m_series) {
        const LocalSeconds lead =
            series.main && series.main->due ? series.main->due->local - series.main->start.local : 0;
        for (const Occurrence& each : occurrences(series, seconds(from) - lead, seconds(to) - lead, reader.zone)) {
            const CalendarEntry& entry = *each.entry;
            if (!entry.isTask || entry.isCancelled || entry.isDone || !entry.due)
                continue;
            const LocalSeconds due = each.start + entry.due->local - entry.start.local;
            const WallTime time = wallTime(entry.due->at(due, reader.zone));
            if (time >= from && time < to)
                found.append({.id = TaskKey{.uid = entry.uid, .original = each.original}.toString(),
                              .title = entry.title,
                              .due = time,
                              .hasTime = !entry.due->isDate});
        }
    }
    return found;
}

} // namespace fendrel
