#include "Platform/Linux/Calendar/ICalendarEdit.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// What is one line to the standard, which may be several in the text.
struct Line {
    QByteArray raw{};  ///< with its end
    QByteArray name{}; ///< upper-case
    qsizetype valueAt{-1};
    QByteArray unfolded{};

    QByteArray value() const { return valueAt < 0 ? QByteArray() : unfolded.sliced(valueAt); }
    QByteArray beforeValue() const { return unfolded.first(std::max<qsizetype>(valueAt, 0)); }
    bool is(const char* property, const char* wanted) const {
        return name == property && value().trimmed().toUpper() == wanted;
    }
};

void understand(Line& line) {
    line.unfolded = line.raw;
    line.unfolded.replace("\r\n", "\n").replace("\n ", "").replace("\n\t", "");
    while (line.unfolded.endsWith('\n') || line.unfolded.endsWith('\r'))
        line.unfolded.chop(1);
    bool isQuoted = false;
    qsizetype nameEnd = -1;
    for (qsizetype at = 0; at < line.unfolded.size() && line.valueAt < 0; ++at) {
        const char each = line.unfolded[at];
        isQuoted ^= each == '"';
        if (!isQuoted && (each == ':' || each == ';') && nameEnd < 0)
            nameEnd = at;
        if (!isQuoted && each == ':')
            line.valueAt = at + 1;
    }
    line.name = line.unfolded.first(std::max<qsizetype>(nameEnd, 0)).toUpper();
}

QList<Line> linesOf(const QByteArray& text) {
    QList<Line> lines;
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = at;
        do {
            end = text.indexOf('\n', end);
            end = end < 0 ? text.size() : end + 1;
        } while (end < text.size() && (text[end] == ' ' || text[end] == '\t'));
        Line line{.raw = text.sliced(at, end - at)};
        understand(line);
        lines.append(line);
        at = end;
    }
    return lines;
}

QByteArray joined(const QList<Line>& lines, qsizetype from, qsizetype to) {
    QByteArray text;
    for (qsizetype at = from; at < to; ++at)
        text += lines[at].raw;
    return text;
}

/// As many lines as it takes: none may be longer than 75 bytes, and none begins within a character.
QByteArray folded(const QByteArray& content, const QByteArray& lineEnd) {
    QByteArray text;
    qsizetype room = 75;
    for (qsizetype at = 0; at < content.size();) {
        qsizetype end = std::min(at + room, content.size());
        while (end < content.size() && end > at + 1 && (static_cast<uchar>(content[end]) & 0xC0U) == 0x80U)
            --end;
        text += (at > 0 ? lineEnd + ' ' : QByteArray()) + content.sliced(at, end - at);
        at = end;
        room = 74;
    }
    return text + lineEnd;
}

QByteArray escaped(QString text) {
    text.replace(u'\\', u"\\\\"_s).replace(u';', u"\\;"_s).replace(u',', u"\\,"_s).replace(u'\n', u"\\n"_s);
    return text.remove(u'\r').toUtf8();
}

QByteArray stamp(WallTime time) {
    return toDateTime(time).toString(u"yyyyMMdd'T'HHmmss'Z'").toLatin1();
}

/// One VTODO among the lines of a calendar.
class Task {
public:
    Task(QList<Line>& lines, qsizetype begin)
        : m_lines(lines), m_begin(begin), m_lineEnd(lines[begin].raw.endsWith("\r\n") ? "\r\n" : "\n") {}

    qsizetype begin() const { return m_begin; }
    qsizetype end() const { ///< behind its last line
        qsizetype depth = 0;
        for (qsizetype at = m_begin; at < m_lines.size(); ++at) {
            depth += m_lines[at].name == "BEGIN";
            if (m_lines[at].name == "END" && --depth == 0)
                return at + 1;
        }
        return m_lines.size();
    }

    QByteArray value(const QByteArray& name) const {
        const qsizetype at = find(name);
        return at < 0 ? QByteArray() : m_lines[at].value();
    }
    /// What stands beside the value, as a zone, stays.
    void set(const QByteArray& name, const QByteArray& value) {
        const qsizetype at = find(name);
        Line line{.raw = folded((at < 0 ? name + ':' : m_lines[at].beforeValue()) + value, m_lineEnd)};
        understand(line);
        if (at >= 0)
            m_lines[at] = line;
        else
            m_lines.insert(ownEnd(), line);
    }
    void remove(const QByteArray& name) {
        if (const qsizetype at = find(name); at >= 0)
            m_lines.removeAt(at);
    }

private:
    /// Where what it contains itself ends, and alarms may begin.
    qsizetype ownEnd() const {
        qsizetype at = m_begin + 1;
        while (at < m_lines.size() && m_lines[at].name != "BEGIN" && m_lines[at].name != "END")
            ++at;
        return at;
    }
    qsizetype find(const QByteArray& name) const {
        // Some programs write alarms first.
        int depth = 0;
        for (qsizetype at = m_begin + 1; at < m_lines.size() && depth >= 0; ++at) {
            const Line& line = m_lines[at];
            if (depth == 0 && line.name == name)
                return at;
            depth += (line.name == "BEGIN" ? 1 : 0) - (line.name == "END" ? 1 : 0);
        }
        return -1;
    }

    QList<Line>& m_lines;
    qsizetype m_begin;
    QByteArray m_lineEnd;
};

void revise(Task& task, WallTime now) {
    task.set("LAST-MODIFIED", stamp(now));
    task.set("SEQUENCE", QByteArray::number(task.value("SEQUENCE").trimmed().toInt() + 1));
}

void finish(Task& task, WallTime now) {
    task.set("STATUS", "COMPLETED");
    task.set("COMPLETED", stamp(now));
    task.set("PERCENT-COMPLETE", "100");
    revise(task, now);
}

QByteArray moved(const QByteArray& written, const CalendarMoment& moment, LocalSeconds by) {
    const auto time = QDateTime::fromSecsSinceEpoch(moment.local + by, Qt::UTC);
    if (moment.isDate)
        return time.toString(u"yyyyMMdd").toLatin1();
    return time.toString(u"yyyyMMdd'T'HHmmss").toLatin1() + (written.trimmed().endsWith('Z') ? "Z" : "");
}

void moveOn(Task& task, const CalendarEntry& entry, const SeriesStep& step, WallTime now) {
    const LocalSeconds by = step.next - entry.start.local;
    if (const QByteArray start = task.value("DTSTART"); !start.isEmpty())
        task.set("DTSTART", moved(start, entry.start, by));
    if (const QByteArray due = task.value("DUE"); !due.isEmpty() && entry.due)
        task.set("DUE", moved(due, *entry.due, by));
    static const QRegularExpression count(u"(COUNT=)(\\d+)"_s, QRegularExpression::CaseInsensitiveOption);
    QString rule = QString::fromLatin1(task.value("RRULE"));
    if (const auto match = count.match(rule); match.hasMatch()) {
        const int left = std::max(1, match.captured(2).toInt() - step.passed);
        rule.replace(match.capturedStart(2), match.capturedLength(2), QString::number(left));
        task.set("RRULE", rule.toLatin1());
    }
    task.remove("COMPLETED");
    task.remove("PERCENT-COMPLETE");
    task.set("STATUS", "NEEDS-ACTION");
    revise(task, now);
}

} // namespace

std::optional<ICalendarEdit> ICalendarEdit::completed(const QByteArray& text, const TaskKey& key, WallTime now,
                                                      const CalendarZone& users) {
    const auto entries = readICalendar(text);
    const auto ofTask = [&](bool isReplacement) {
        return std::ranges::find_if(entries, [&](const CalendarEntry& each) {
            return each.isTask && each.uid == key.uid && each.recurrence.has_value() == isReplacement;
        });
    };
    const auto series = ofTask(false);
    auto entry = series;
    if (key.original) {
        const CalendarMoment& clock = (series != entries.end() ? series : ofTask(true))->start;
        const auto replacement = std::ranges::find_if(entries, [&](const CalendarEntry& each) {
            return each.isTask && each.uid == key.uid && each.recurrence &&
                   each.original(clock, users) == *key.original;
        });
        entry = replacement != entries.end() ? replacement : series;
    }
    if (entry == entries.end())
        return {};

    QList<Line> lines = linesOf(text);
    qsizetype begin = -1;
    for (int number = -1; number < entry->number && ++begin < lines.size();)
        number += lines[begin].is("BEGIN", "VTODO") || lines[begin].is("BEGIN", "VEVENT");
    if (begin < 0 || begin >= lines.size())
        return {};
    Task task(lines, begin);
    if (unescaped(QString::fromUtf8(task.value("UID"))).trimmed() != entry->uid)
        return {}; // what the library made of the text is not what stands there
    const auto step = key.original && !entry->recurrence ? nextInstance(*entry, *key.original, users) : std::nullopt;
    if (step)
        moveOn(task, *entry, *step, now);
    else
        finish(task, now);
    return ICalendarEdit{.text = joined(lines, 0, lines.size()), .task = joined(lines, begin, task.end())};
}

QByteArray ICalendarEdit::newTask(const QString& uid, const QString& title, QDate due, WallTime now) {
    const QByteArray time = stamp(now);
    const QList<QByteArray> contents{"BEGIN:VTODO",
                                     "UID:" + uid.toUtf8(),
                                     "DTSTAMP:" + time,
                                     "CREATED:" + time,
                                     "LAST-MODIFIED:" + time,
                                     "SUMMARY:" + escaped(title),
                                     "DUE;VALUE=DATE:" + due.toString(u"yyyyMMdd").toLatin1(),
                                     "STATUS:NEEDS-ACTION",
                                     "END:VTODO"};
    QByteArray text;
    for (const QByteArray& each : contents)
        text += folded(each, "\r\n");
    return text;
}

QByteArray ICalendarEdit::calendarOf(const QByteArray& components) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Fendrel//Fendrel//EN\r\n" + components + "END:VCALENDAR\r\n";
}

std::optional<QByteArray> ICalendarEdit::added(const QByteArray& text, const QByteArray& task) {
    if (text.trimmed().isEmpty())
        return calendarOf(task);
    const QList<Line> lines = linesOf(text);
    for (qsizetype at = lines.size() - 1; at >= 0; --at) {
        if (!lines[at].is("END", "VCALENDAR"))
            continue;
        QByteArray inserted = task;
        if (!lines[at].raw.endsWith("\r\n"))
            inserted.replace("\r\n", "\n");
        return joined(lines, 0, at) + inserted + joined(lines, at, lines.size());
    }
    return {};
}

} // namespace fendrel
