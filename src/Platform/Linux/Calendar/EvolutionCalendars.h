#pragma once

#include "Base/Worker.h"
#include "Platform/Linux/Calendar/CalendarSource.h"
#include "Platform/Linux/Calendar/EvolutionCalendar.h"
#include "Platform/Linux/Calendar/ICalendar.h"
#include "Ports/Clock.h"

#include <QDBusServiceWatcher>
#include <QObject>

#include <list>
#include <memory>
#include <vector>

namespace fendrel {

/// The calendars of the desktop's calendar server (evolution-data-server). What it opens for us goes with our
/// connection to the bus. What it sends is read by the worker.
class EvolutionCalendars final : public QObject, public CalendarSource {
    Q_OBJECT
public:
    static inline const QString registry = QStringLiteral("org.gnome.evolution.dataserver.Sources5");

    EvolutionCalendars(Worker& worker, Clock& clock);
    ~EvolutionCalendars() override;
    EvolutionCalendars(const EvolutionCalendars&) = delete;
    EvolutionCalendars& operator=(const EvolutionCalendars&) = delete;

    CalendarStore::Source kind() const override { return CalendarStore::Source::system; }
    Handle events(WallTime from, WallTime to, Found<CalendarEvent> done) override;
    Handle reminders(WallTime from, WallTime to, Found<CalendarReminder> done) override;
    Handle complete(const QString& reminderID, Saved done) override;
    Handle add(const QString& title, QDate due, Saved done) override;

private Q_SLOTS:
    void objectsChanged();
    void sourcesChanged();
    void sourceChanged(const QDBusMessage& signal);

private:
    using Kind = EvolutionSource::Kind;
    using Ready = std::function<void(bool)>;
    using Calendar = std::shared_ptr<EvolutionCalendar>;
    template<class Item>
    using Expand = std::function<QList<Item>(ICalendar&, const CalendarReader&)>;
    struct Gathering;
    struct Saving;

    /// Runs once it is known which calendars there are, or that the server does not say.
    Handle whenKnown(Ready run);
    void know(const QDBusMessage& reply);
    void follow(const QString& service);
    void serverGone();
    void announce(std::chrono::milliseconds later);

    /// Asks all calendars of a kind. `done` when all have answered or their time is over; false: none of them has.
    Handle gather(Kind kind, const QString& query, Ready done);
    void ask(const std::shared_ptr<Gathering>& gathering, const Calendar& calendar, const QString& query);
    void completeSeries(const std::shared_ptr<Gathering>& gathering, const Calendar& calendar,
                        const QStringList& found);
    void completeZones(const std::shared_ptr<Gathering>& gathering, const Calendar& calendar);
    void describeZones(const std::shared_ptr<Gathering>& gathering, const Calendar& calendar, QStringList wanted);
    /// Looks again later where some did not answer, or will not tell of changes.
    void gathered(const Gathering& gathering, Kind kind);
    template<class Item>
    Handle read(Kind kind, const QString& query, Expand<Item> expand, Found<Item> done);

    Handle save(Saved done, std::function<void(const std::shared_ptr<Saving>&)> begin);
    void modify(const std::shared_ptr<Saving>& saving, const Calendar& calendar, const TaskKey& key);
    void finish(const std::shared_ptr<Saving>& saving, bool isSaved);
    Calendar calendar(Kind kind, const QString& uid) const;
    Calendar defaultTaskList() const;

    Worker& m_worker;
    Clock& m_clock;
    QDBusServiceWatcher m_services;
    bool m_isKnown = false;
    QStringList m_addresses; ///< the user's
    std::vector<Calendar> m_calendars;
    std::list<std::shared_ptr<Ready>> m_waiting; ///< for the sources; empty: not any more
    std::list<std::shared_ptr<Saving>> m_savings;
    Handle m_asking;
    Handle m_changes;
    Handle m_again;
};

} // namespace fendrel
