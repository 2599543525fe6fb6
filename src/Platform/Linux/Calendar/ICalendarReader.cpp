#include "Platform/Linux/Calendar/ICalendar.h"

#include <QRegularExpression>
#include <QSet>

#include <libical/ical.h>

#include <algorithm>
#include <map>
#include <memory>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

struct FreeComponent {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using Component = std::unique_ptr<icalcomponent, FreeComponent>;

/// With its logical lines each on one.
QByteArray unfolded(QByteArray text) {
    return text.replace("\r\n", "\n").replace("\n ", "").replace("\n\t", "");
}

/// The library goes down by calling itself.
bool isTooDeep(const QByteArray& text) {
    constexpr int deepest = 16;
    const QByteArray upper = "\n" + unfolded(text).toUpper();
    int depth = 0;
    for (qsizetype at = 0; (at = upper.indexOf('\n', at)) >= 0;) {
        const auto line = QByteArrayView(upper).sliced(++at);
        if (line.startsWith("END:"))
            depth = std::max(0, depth - 1);
        if (!line.startsWith("BEGIN"))
            continue;
        qsizetype next = 5; // the library takes blanks here
        while (next < line.size() && (line[next] == ' ' || line[next] == '\t'))
            ++next;
        if (next < line.size() && (line[next] == ':' || line[next] == ';') && ++depth > deepest)
            return true;
    }
    return false;
}

QString text(const char* value) {
    return QString::fromUtf8(value).trimmed();
}

class Reader {
public:
    std::vector<CalendarEntry> entries;

    void readAll(icalcomponent* parent) {
        // Zones first: they may stand after what is told in them.
        for (auto* each = icalcomponent_get_first_component(parent, ICAL_VTIMEZONE_COMPONENT); each != nullptr;
             each = icalcomponent_get_next_component(parent, ICAL_VTIMEZONE_COMPONENT)) {
            if (auto* name = icalcomponent_get_first_property(each, ICAL_TZID_PROPERTY))
                m_described[icalproperty_get_tzid(name)] = each;
        }
        for (auto* each = icalcomponent_get_first_component(parent, ICAL_ANY_COMPONENT); each != nullptr;
             each = icalcomponent_get_next_component(parent, ICAL_ANY_COMPONENT)) {
            const auto kind = icalcomponent_isa(each);
            if (kind == ICAL_VEVENT_COMPONENT || kind == ICAL_VTODO_COMPONENT)
                read(each);
            else if (kind == ICAL_VCALENDAR_COMPONENT || kind == ICAL_XROOT_COMPONENT)
                readAll(each);
        }
    }

    void read(icalcomponent* component) {
        CalendarEntry entry{.number = m_number++, .isTask = icalcomponent_isa(component) == ICAL_VTODO_COMPONENT};
        std::optional<CalendarMoment> start;
        std::optional<CalendarMoment> end;
        std::optional<icaldurationtype> duration;
        for (auto* each = icalcomponent_get_first_property(component, ICAL_ANY_PROPERTY); each != nullptr;
             each = icalcomponent_get_next_property(component, ICAL_ANY_PROPERTY)) {
            switch (icalproperty_isa(each)) {
            case ICAL_DTSTART_PROPERTY:
                start = moment(each, icalproperty_get_dtstart(each));
                break;
            case ICAL_DTEND_PROPERTY:
                end = moment(each, icalproperty_get_dtend(each));
                break;
            case ICAL_DUE_PROPERTY:
                entry.due = moment(each, icalproperty_get_due(each));
                break;
            case ICAL_DURATION_PROPERTY:
                duration = icalproperty_get_duration(each);
                break;
            default:
                describe(entry, each);
                readSpecial(entry, each);
            }
        }
        if (entry.isTask && !start)
            start = entry.due;
        // Without a name it can't be said which is meant, and another might be ticked off.
        if (!start || (entry.uid.isEmpty() && (entry.recurrence || entry.isTask)))
            return;
        entry.start = *start;
        if (!entry.isTask)
            measure(entry, end, duration);
        else if (!entry.due && duration && duration->is_neg == 0)
            entry.due = later(*start, *duration);
        readRules(entry, component);
        entries.push_back(std::move(entry));
    }

private:
    static void describe(CalendarEntry& entry, icalproperty* property) {
        switch (icalproperty_isa(property)) {
        case ICAL_UID_PROPERTY:
            entry.uid = text(icalproperty_get_uid(property));
            break;
        case ICAL_SUMMARY_PROPERTY:
            entry.title = text(icalproperty_get_summary(property));
            break;
        case ICAL_LOCATION_PROPERTY:
            entry.location = text(icalproperty_get_location(property));
            break;
        case ICAL_DESCRIPTION_PROPERTY:
            entry.notes = text(icalproperty_get_description(property));
            break;
        case ICAL_URL_PROPERTY:
            entry.url = text(icalproperty_get_url(property));
            break;
        case ICAL_STATUS_PROPERTY: {
            const auto status = icalproperty_get_status(property);
            entry.isCancelled = status == ICAL_STATUS_CANCELLED;
            entry.isDone = entry.isDone || status == ICAL_STATUS_COMPLETED;
            break;
        }
        case ICAL_COMPLETED_PROPERTY:
            entry.isDone = true;
            break;
        case ICAL_PERCENTCOMPLETE_PROPERTY:
            entry.isDone = entry.isDone || icalproperty_get_percentcomplete(property) >= 100;
            break;
        case ICAL_ATTENDEE_PROPERTY:
            readAttendee(entry, property);
            break;
        default:
            break;
        }
    }

    void readSpecial(CalendarEntry& entry, icalproperty* property) {
        switch (icalproperty_isa(property)) {
        case ICAL_RECURRENCEID_PROPERTY: {
            entry.recurrence = moment(property, icalproperty_get_recurrenceid(property));
            auto* range = icalproperty_get_first_parameter(property, ICAL_RANGE_PARAMETER);
            entry.movesFollowing = range != nullptr && icalparameter_get_range(range) == ICAL_RANGE_THISANDFUTURE;
            break;
        }
        case ICAL_RDATE_PROPERTY: {
            const auto date = icalproperty_get_rdate(property);
            const bool isPeriod = icaltime_is_null_time(date.time) != 0;
            if (const auto read = moment(property, isPeriod ? date.period.start : date.time))
                entry.dates.append(*read);
            break;
        }
        case ICAL_EXDATE_PROPERTY:
            if (const auto read = moment(property, icalproperty_get_exdate(property)))
                entry.exceptions.append(*read);
            break;
        default:
            break;
        }
    }

    static void readAttendee(CalendarEntry& entry, icalproperty* property) {
        auto* status = icalproperty_get_first_parameter(property, ICAL_PARTSTAT_PARAMETER);
        if (status == nullptr || icalparameter_get_partstat(status) != ICAL_PARTSTAT_DECLINED)
            return;
        QString address = text(icalproperty_get_attendee(property)).toLower();
        if (address.startsWith("mailto:"_L1))
            address.remove(0, 7);
        entry.declined.append(address);
        // Where the attendee is named by something else, as an account of the server.
        if (auto* mail = icalproperty_get_first_parameter(property, ICAL_EMAIL_PARAMETER))
            entry.declined.append(text(icalparameter_get_email(mail)).toLower());
        entry.declined.removeAll(QString()); // nobody in particular
    }

    /// As the standard has it: what ends at a given time takes that long whenever it comes, and days are the
    /// calendar's.
    static void measure(CalendarEntry& entry, const std::optional<CalendarMoment>& end,
                        const std::optional<icaldurationtype>& duration) {
        static const CalendarZone utc{QTimeZone::utc()};
        if (end && entry.start.isDate && end->isDate) {
            entry.days = (end->local - entry.start.local) / 86'400;
        } else if (end) {
            const bool isOneClock = end->zone == entry.start.zone && end->zone == nullptr;
            entry.seconds = isOneClock ? end->local - entry.start.local : end->toUtc(utc) - entry.start.toUtc(utc);
        } else if (duration && duration->is_neg == 0) {
            entry.days = days(*duration);
            entry.seconds = seconds(*duration);
        }
        if (entry.start.isDate && entry.days <= 0 && entry.seconds <= 0)
            entry.days = 1; // some programs write the last day as the end
        entry.days = std::clamp<qint64>(entry.days, 0, 36'600);
        entry.seconds = std::clamp<qint64>(entry.seconds, 0, 36'600LL * 86'400);
    }

    static qint64 days(const icaldurationtype& duration) { return duration.days + 7 * qint64(duration.weeks); }
    static qint64 seconds(const icaldurationtype& duration) {
        return qint64(duration.hours) * 3600 + qint64(duration.minutes) * 60 + duration.seconds;
    }
    static CalendarMoment later(CalendarMoment moment, const icaldurationtype& duration) {
        moment.local += days(duration) * 86'400 + seconds(duration);
        moment.isDate = moment.isDate && seconds(duration) == 0;
        return moment;
    }

    static void readRules(CalendarEntry& entry, icalcomponent* component) {
        if (entry.recurrence)
            return;
        const auto collect = [&](icalproperty_kind kind, std::vector<RecurrenceRule>& rules) {
            for (auto* each = icalcomponent_get_first_property(component, kind); each != nullptr && rules.size() < 16;
                 each = icalcomponent_get_next_property(component, kind))
                rules.emplace_back(icalproperty_get_value_as_string(each), entry.start);
        };
        collect(ICAL_RRULE_PROPERTY, entry.rules);
        collect(ICAL_EXRULE_PROPERTY, entry.exceptionRules);
    }

    std::optional<CalendarMoment> moment(icalproperty* property, const icaltimetype& time) {
        const QDate date(time.year, time.month, time.day);
        if (!date.isValid() || time.year < 1 || time.year > 9999)
            return {};
        CalendarMoment moment{.local = QDateTime(date, QTime(0, 0), Qt::UTC).toSecsSinceEpoch(),
                              .isDate = time.is_date != 0};
        if (moment.isDate)
            return moment;
        moment.local += time.hour * 3600 + time.minute * 60 + time.second;
        if (icaltime_is_utc(time) != 0)
            moment.zone = zone("UTC");
        else if (auto* name = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER))
            moment.zone = zone(icalparameter_get_tzid(name));
        return moment;
    }

    /// Null where nobody knows it: the user's is the best guess.
    std::shared_ptr<const CalendarZone> zone(const QByteArray& identifier) {
        const auto before = m_zones.find(identifier);
        if (before != m_zones.end())
            return before->second;
        auto& zone = m_zones[identifier];
        if (const auto known = CalendarZone::known(identifier))
            zone = std::make_shared<const CalendarZone>(*known);
        else if (const auto described = m_described.find(identifier); described != m_described.end())
            zone = std::make_shared<const CalendarZone>(described->second);
        return zone;
    }

    int m_number = 0;
    std::map<QByteArray, icalcomponent*> m_described;
    std::map<QByteArray, std::shared_ptr<const CalendarZone>> m_zones;
};

} // namespace

std::vector<CalendarEntry> readICalendar(const QByteArray& text) {
    if (isTooDeep(text))
        return {};
    const Component root(icalparser_parse_string(text.constData()));
    if (!root)
        return {};
    Reader reader;
    const auto kind = icalcomponent_isa(root.get());
    if (kind == ICAL_VEVENT_COMPONENT || kind == ICAL_VTODO_COMPONENT)
        reader.read(root.get());
    else
        reader.readAll(root.get());
    return std::move(reader.entries);
}

QString unescaped(const QString& value) {
    QString plain;
    for (qsizetype at = 0; at < value.size(); ++at) {
        const bool isEscape = value[at] == u'\\' && at + 1 < value.size();
        at += isEscape ? 1 : 0;
        plain += isEscape && value[at].toLower() == u'n' ? QChar(u'\n') : value[at];
    }
    return plain;
}

QStringList unknownZones(const QByteArray& text) {
    static const QRegularExpression parameter(uR"(;TZID=("[^"\r\n]*"|[^":;\r\n]*))"_s,
                                              QRegularExpression::CaseInsensitiveOption);
    QSet<QString> seen;
    QStringList unknown;
    const QString source = QString::fromUtf8(unfolded(text));
    for (auto matches = parameter.globalMatch(source); matches.hasNext();) {
        const QString name = matches.next().captured(1).remove(u'"');
        if (seen.contains(name))
            continue;
        seen.insert(name);
        if (!CalendarZone::known(name.toUtf8()))
            unknown.append(name);
    }
    return unknown;
}

} // namespace fendrel
