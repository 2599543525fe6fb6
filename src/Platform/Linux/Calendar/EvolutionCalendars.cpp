#include "Platform/Linux/Calendar/EvolutionCalendars.h"

#include "Base/Log.h"
#include "Base/OnWorker.h"
#include "Platform/Linux/Calendar/ICalendarEdit.h"
#include "Platform/Linux/Desktop/BusCall.h"
#include "Platform/Linux/Desktop/GSettingsConfiguration.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QRegularExpression>
#include <QUrl>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 8s;         // with calendars somewhere in the network
constexpr auto changesSettle = 500ms; // a calendar that syncs tells of every event
constexpr auto recovery = 5s;         // or a server that falls at every question would fall all the time

const QString viewInterface = u"org.gnome.evolution.dataserver.CalendarView"_s;

bool isAnswer(const QDBusMessage& reply) {
    return reply.type() == QDBusMessage::ReplyMessage;
}

QString unfolded(QString text) {
    return text.remove(u"\r\n "_s).remove(u"\r\n\t"_s);
}

bool isOfSeries(const QString& object) {
    static const QRegularExpression mark(u"^(RRULE|RDATE|RECURRENCE-ID)[;:]"_s, QRegularExpression::MultilineOption);
    return object.contains(mark);
}

/// The query for the whole of the series that these objects are part of.
QString seriesQuery(const QStringList& objects) {
    static const QRegularExpression uid(u"^UID:(.*?)\\r?$"_s, QRegularExpression::MultilineOption);
    QStringList terms;
    for (const QString& object : objects) {
        QString name = unescaped(uid.match(unfolded(object)).captured(1));
        if (!name.isEmpty())
            terms.append(u"(uid? \"%1\")"_s.arg(name.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s)));
    }
    terms.removeDuplicates();
    return terms.isEmpty() ? QString() : u"(or %1)"_s.arg(terms.join(u' '));
}

QString time(WallTime time) {
    return u"(make-time \"%1\")"_s.arg(toDateTime(time).toString(u"yyyyMMdd'T'HHmmss'Z'"));
}

} // namespace

struct EvolutionCalendars::Gathering {
    Ready done{};
    Handle known{};
    Handle patience{};
    std::list<Handle> calls{};
    qsizetype open{};
    bool hasAnswer{};
    bool isComplete{true};
    std::function<void(const Gathering&)> ended{};

    void end() {
        isComplete = isComplete && open == 0;
        ended(*this);
        patience.reset();
        calls.clear();
        if (const auto ready = std::exchange(done, {}))
            ready(hasAnswer);
    }
    void answered(bool isAnswer) {
        hasAnswer |= isAnswer;
        isComplete &= isAnswer;
        if (--open == 0)
            end();
    }
};

/// Goes on to its end, whoever waits for it.
struct EvolutionCalendars::Saving {
    Saved done{};
    Handle step{};
    bool isWanted{true};
};

EvolutionCalendars::EvolutionCalendars(Worker& worker, Clock& clock) : m_worker(worker), m_clock(clock) {
    m_services.setConnection(QDBusConnection::sessionBus());
    m_services.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_services, &QDBusServiceWatcher::serviceUnregistered, this, &EvolutionCalendars::serverGone);
}

EvolutionCalendars::~EvolutionCalendars() {
    for (const auto& saving : m_savings)
        saving->step.reset();
}

void EvolutionCalendars::announce(std::chrono::milliseconds later) {
    m_changes = m_clock.after(later, [this] { onChanged(); });
}

void EvolutionCalendars::objectsChanged() {
    announce(changesSettle);
}

void EvolutionCalendars::sourcesChanged() {
    m_isKnown = false;
    announce(changesSettle);
}

void EvolutionCalendars::sourceChanged(const QDBusMessage& signal) {
    // Whether it is connected just now changes often, and nothing for us.
    if (qdbus_cast<QVariantMap>(signal.arguments().value(1)).contains(u"Data"_s))
        sourcesChanged();
}

void EvolutionCalendars::serverGone() {
    qCInfo(logDesktop) << "The calendar server ended";
    m_isKnown = false;
    m_calendars.clear(); // what was opened went with it
    m_services.setWatchedServices({});
    announce(recovery);
    for (const auto& each : std::exchange(m_savings, {})) {
        each->step.reset(); // whether it was saved, the next look tells
        finish(each, false);
    }
}

void EvolutionCalendars::follow(const QString& service) {
    if (m_services.watchedServices().contains(service))
        return;
    m_services.addWatchedService(service);
    auto bus = QDBusConnection::sessionBus();
    for (const QString& signal : {u"ObjectsAdded"_s, u"ObjectsModified"_s, u"ObjectsRemoved"_s})
        bus.connect(service, {}, viewInterface, signal, this, SLOT(objectsChanged()));
    const QString objects = u"org.freedesktop.DBus.ObjectManager"_s;
    for (const QString& signal : {u"InterfacesAdded"_s, u"InterfacesRemoved"_s})
        bus.connect(service, {}, objects, signal, this, SLOT(sourcesChanged()));
    bus.connect(service, {}, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                {u"org.gnome.evolution.dataserver.Source"_s}, {}, this, SLOT(sourceChanged(QDBusMessage)));
}

Handle EvolutionCalendars::whenKnown(Ready run) {
    auto waiting = std::make_shared<Ready>(std::move(run));
    m_waiting.push_back(waiting);
    if (m_isKnown) {
        m_asking = m_clock.after({}, [this] { know({}); });
    } else if (m_waiting.size() == 1) {
        const auto question =
            QDBusMessage::createMethodCall(registry, u"/org/gnome/evolution/dataserver/SourceManager"_s,
                                           u"org.freedesktop.DBus.ObjectManager"_s, u"GetManagedObjects"_s);
        m_asking = callOnBus(question, {}, [this](const QDBusMessage& reply) { know(reply); });
    }
    return Handle([waiting] { *waiting = {}; });
}

void EvolutionCalendars::know(const QDBusMessage& reply) {
    if (!m_isKnown && isAnswer(reply)) {
        m_isKnown = true;
        follow(reply.service());
        const auto found = EvolutionSources::read(reply);
        m_addresses = found.addresses;
        std::vector<Calendar> calendars;
        for (const EvolutionSource& source : found.sources) {
            auto known = calendar(source.kind, source.uid);
            if (!known) {
                known = std::make_shared<EvolutionCalendar>(source);
                known->onOpened = [this](const QString& service) { follow(service); };
            }
            calendars.push_back(known);
        }
        m_calendars = std::move(calendars);
    } else if (!m_isKnown && reply.errorName() == "org.freedesktop.DBus.Error.ServiceUnknown"_L1) {
        onGone();
    }
    for (const auto waiting = std::exchange(m_waiting, {}); const auto& each : waiting)
        if (const auto run = std::exchange(*each, {}))
            run(m_isKnown);
}

EvolutionCalendars::Calendar EvolutionCalendars::calendar(Kind kind, const QString& uid) const {
    const auto found = std::ranges::find_if(
        m_calendars, [&](const Calendar& each) { return each->source() == EvolutionSource{.uid = uid, .kind = kind}; });
    return found == m_calendars.end() ? nullptr : *found;
}

Handle EvolutionCalendars::gather(Kind kind, const QString& query, Ready done) {
    auto gathering = std::make_shared<Gathering>();
    gathering->done = std::move(done);
    gathering->ended = [this, kind](const Gathering& ended) { gathered(ended, kind); };
    gathering->known = whenKnown([this, gathering, kind, query](bool isKnown) {
        std::vector<Calendar> asked;
        std::ranges::copy_if(m_calendars, std::back_inserter(asked),
                             [kind](const Calendar& each) { return each->source().kind == kind; });
        gathering->isComplete = isKnown;
        gathering->hasAnswer = isKnown && asked.empty();
        if (asked.empty())
            return gathering->end();
        gathering->open = static_cast<qsizetype>(asked.size());
        gathering->patience = m_clock.after(patience, [weak = std::weak_ptr(gathering)] {
            if (const auto alive = weak.lock())
                alive->end();
        });
        for (const Calendar& each : asked)
            ask(gathering, each, query);
    });
    return Handle([gathering] {
        gathering->done = {};
        gathering->known.reset();
        gathering->patience.reset();
        gathering->calls.clear();
    });
}

void EvolutionCalendars::gathered(const Gathering& gathering, Kind kind) {
    const bool isFollowed = std::ranges::all_of(
        m_calendars, [kind](const Calendar& each) { return each->source().kind != kind || each->isFollowed(); });
    if (!gathering.isComplete || !isFollowed)
        m_again = m_clock.after(calendarsRetry, [this] { onChanged(); });
}

void EvolutionCalendars::ask(const std::shared_ptr<Gathering>& gathering, const Calendar& calendar,
                             const QString& query) {
    gathering->calls.push_back(calendar->call(
        u"GetObjectList"_s, {query}, [this, gathering, weak = std::weak_ptr(calendar)](const QDBusMessage& reply) {
            const auto alive = weak.lock();
            if (!alive || !isAnswer(reply))
                return gathering->answered(false);
            completeSeries(gathering, alive, reply.arguments().value(0).toStringList());
        }));
}

void EvolutionCalendars::completeSeries(const std::shared_ptr<Gathering>& gathering, const Calendar& calendar,
                                        const QStringList& found) {
    // The query found what is in the range. What was moved out of it must be known as well, or it would show twice.
    struct Parts {
        QStringList single{};
        QString query{}; ///< for the others
    };
    const auto part = [found] {
        Parts parts;
        QStringList ofSeries;
        for (const QString& each : found)
            (isOfSeries(each) ? ofSeries : parts.single).append(each);
        parts.query = seriesQuery(ofSeries);
        return parts;
    };
    const auto ask = [this, gathering, weak = std::weak_ptr(calendar)](const Parts& parts) {
        const auto alive = weak.lock();
        if (!alive)
            return gathering->answered(false);
        const auto join = [this, gathering, weak, single = parts.single](const QDBusMessage& reply) {
            const auto stillOpen = weak.lock();
            if (!stillOpen || !isAnswer(reply))
                return gathering->answered(false);
            stillOpen->objects = single + reply.arguments().value(0).toStringList();
            completeZones(gathering, stillOpen);
        };
        if (!parts.query.isEmpty())
            return gathering->calls.push_back(alive->call(u"GetObjectList"_s, {parts.query}, join));
        alive->objects = parts.single;
        completeZones(gathering, alive);
    };
    gathering->calls.push_back(onWorker<Parts>(m_worker, part, ask));
}

void EvolutionCalendars::completeZones(const std::shared_ptr<Gathering>& gathering, const Calendar& calendar) {
    gathering->calls.push_back(onWorker<QStringList>(
        m_worker, [objects = calendar->objects] { return unknownZones(objects.join(QString()).toUtf8()); },
        [this, gathering, weak = std::weak_ptr(calendar)](const QStringList& unknown) {
            if (const auto alive = weak.lock())
                describeZones(gathering, alive, unknown);
            else
                gathering->answered(false);
        }));
}

void EvolutionCalendars::describeZones(const std::shared_ptr<Gathering>& gathering, const Calendar& calendar,
                                       QStringList wanted) {
    wanted.removeIf([&](const QString& zone) { return calendar->askedZones.contains(zone); });
    if (wanted.isEmpty())
        return gathering->answered(true);
    const QString zone = wanted.first(); // few calendars have one, and hardly any has two
    calendar->askedZones.append(zone);
    gathering->calls.push_back(calendar->call(
        u"GetTimezone"_s, {zone}, [this, gathering, wanted, weak = std::weak_ptr(calendar)](const QDBusMessage& reply) {
            const auto alive = weak.lock();
            if (!alive)
                return gathering->answered(false);
            if (isAnswer(reply))
                alive->describedZones.append(reply.arguments().value(0).toString());
            describeZones(gathering, alive, wanted);
        }));
}

template<class Item>
Handle EvolutionCalendars::read(Kind kind, const QString& query, Expand<Item> expand, Found<Item> done) {
    using Answer = Result<QList<Item>, Access>;
    const auto reading = std::make_shared<Handle>();
    auto gathered = [this, kind, reading, expand = std::move(expand), done = std::move(done)](bool hasAnswer) {
        if (!hasAnswer)
            return done(Answer::failure(Access::granted));
        struct Text {
            QString source{};
            QByteArray text{};
            QStringList addresses{};
        };
        QList<Text> texts;
        for (const Calendar& each : m_calendars) {
            if (each->source().kind != kind)
                continue;
            QStringList addresses = m_addresses;
            if (!each->address().isEmpty())
                addresses.append(each->address());
            const QString inside = each->describedZones.join(QString()) + each->objects.join(QString());
            texts.append({.source = each->source().uid,
                          .text = ICalendarEdit::calendarOf(inside.toUtf8()),
                          .addresses = addresses});
        }
        *reading = onWorker<QList<Item>>(
            m_worker,
            [texts, expand] {
                QList<Item> all;
                for (const Text& each : texts) {
                    ICalendar calendar(each.text);
                    for (Item& item : expand(calendar, {.addresses = each.addresses})) {
                        item.id = QString::fromLatin1(QUrl::toPercentEncoding(each.source)) + u'/' + item.id;
                        all.append(std::move(item));
                    }
                }
                return all;
            },
            [done](const QList<Item>& found) { done(found); });
    };
    auto gathering = std::make_shared<Handle>(gather(kind, query, std::move(gathered)));
    return Handle([reading, gathering] {
        gathering->reset();
        reading->reset();
    });
}

Handle EvolutionCalendars::events(WallTime from, WallTime to, Found<CalendarEvent> done) {
    // Wider by a day: it takes what is of a whole day, or of no zone, by the clock of another zone.
    const QString query = u"(occur-in-time-range? %1 %2)"_s.arg(time(from - 24h), time(to + 24h));
    return read<CalendarEvent>(
        Kind::events, query,
        [from, to](ICalendar& calendar, const CalendarReader& reader) { return calendar.events(from, to, reader); },
        std::move(done));
}

Handle EvolutionCalendars::reminders(WallTime from, WallTime to, Found<CalendarReminder> done) {
    return read<CalendarReminder>(
        Kind::tasks, u"(not (is-completed?))"_s,
        [from, to](ICalendar& calendar, const CalendarReader& reader) { return calendar.reminders(from, to, reader); },
        std::move(done));
}

Handle EvolutionCalendars::save(Saved done, std::function<void(const std::shared_ptr<Saving>&)> begin) {
    const auto saving = std::make_shared<Saving>(Saving{.done = std::move(done), .step = {}});
    m_savings.push_back(saving);
    saving->step = whenKnown([saving, begin = std::move(begin)](bool) { begin(saving); });
    return Handle([saving] { saving->isWanted = false; });
}

void EvolutionCalendars::finish(const std::shared_ptr<Saving>& saving, bool isSaved) {
    if (!isSaved)
        qCWarning(logDesktop) << "The calendar server didn't save a reminder";
    m_savings.remove(saving);
    if (saving->isWanted)
        saving->done(isSaved);
}

Handle EvolutionCalendars::complete(const QString& reminderID, Saved done) {
    return save(std::move(done), [this, reminderID](const std::shared_ptr<Saving>& saving) {
        const auto slash = reminderID.indexOf(u'/');
        const auto list = calendar(Kind::tasks, QUrl::fromPercentEncoding(reminderID.left(slash).toUtf8()));
        if (!list || slash < 0)
            return finish(saving, false);
        modify(saving, list, TaskKey::fromString(reminderID.sliced(slash + 1)));
    });
}

void EvolutionCalendars::modify(const std::shared_ptr<Saving>& saving, const Calendar& calendar, const TaskKey& key) {
    using Edited = std::optional<ICalendarEdit>;
    const auto store = [this, saving, weak = std::weak_ptr(calendar)](const Edited& edited) {
        const auto alive = weak.lock();
        if (!alive || !edited)
            return finish(saving, false);
        const bool isOneOfMany = edited->task.contains("\nRECURRENCE-ID");
        saving->step = alive->call(
            u"ModifyObjects"_s, {QStringList{QString::fromUtf8(edited->task)}, isOneOfMany ? u"this"_s : u"all"_s, 0U},
            [this, saving](const QDBusMessage& reply) { finish(saving, isAnswer(reply)); });
    };
    // As it is now, with all that belongs to a series.
    saving->step =
        calendar->call(u"GetObject"_s, {key.uid, QString()}, [this, saving, key, store](const QDBusMessage& reply) {
            if (!isAnswer(reply))
                return finish(saving, false);
            const QByteArray text = reply.arguments().value(0).toString().toUtf8();
            saving->step = onWorker<Edited>(
                m_worker,
                [text, key, now = m_clock.now()] {
                    return ICalendarEdit::completed(text, key, now, CalendarReader().zone);
                },
                store);
        });
}

EvolutionCalendars::Calendar EvolutionCalendars::defaultTaskList() const {
    const auto chosen = GSettingsConfiguration().value(
        {.schema = u"org.gnome.Evolution.DefaultSources"_s, .key = u"default-task-list"_s});
    if (const auto list = calendar(Kind::tasks, chosen.value_or(QString()).remove(u'\'')))
        return list;
    if (const auto list = calendar(Kind::tasks, u"system-task-list"_s))
        return list;
    const auto any =
        std::ranges::find_if(m_calendars, [](const Calendar& each) { return each->source().kind == Kind::tasks; });
    return any == m_calendars.end() ? nullptr : *any;
}

Handle EvolutionCalendars::add(const QString& title, QDate due, Saved done) {
    return save(std::move(done), [this, title, due](const std::shared_ptr<Saving>& saving) {
        const auto list = defaultTaskList();
        if (!list)
            return finish(saving, false);
        const QByteArray task =
            ICalendarEdit::newTask(QUuid::createUuid().toString(QUuid::WithoutBraces), title, due, m_clock.now());
        saving->step = list->call(u"CreateObjects"_s, {QStringList{QString::fromUtf8(task)}, 0U},
                                  [this, saving](const QDBusMessage& reply) { finish(saving, isAnswer(reply)); });
    });
}

} // namespace fendrel
