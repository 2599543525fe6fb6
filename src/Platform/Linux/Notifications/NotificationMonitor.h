#pragma once

#include "Platform/Linux/Notifications/NotificationMessage.h"
#include "Ports/Clock.h"

#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <list>
#include <memory>

struct sd_bus;
struct sd_bus_message;

namespace fendrel {

/// Listens in on the session bus for what concerns notifications, on a connection of its own, which says nothing once
/// it listens. Main thread; never blocks. By sd-bus, because Qt's own connections keep answers to others' calls from
/// us, and only those tell by which number a notification will be replaced.
class NotificationMonitor : public QObject {
    Q_OBJECT
public:
    /// `address` of the bus.
    NotificationMonitor(const QString& address, Clock& clock);
    ~NotificationMonitor() override;

    static QString sessionBus();

    const QString& unavailableReason() const { return m_unavailableReason; } ///< for the user

    std::function<void(const NotificationMessage&)> onMessage = [](const auto&) {};
    std::function<void()> onUnavailable = [] {};

private:
    struct Close {
        void operator()(sd_bus* bus) const;
    };

    /// An owner that is asked for.
    struct OwnerQuestion {
        NotificationMonitor* monitor{};
        QString name{};
    };

    // As in sd-bus: a negative answer is an errno value.
    int open(const QString& address);
    int askNames();
    int namesTold(sd_bus_message* answer);
    int becomeMonitor();
    int monitorTold(sd_bus_message* answer);
    void read();
    void fail(const QString& reason);

    std::unique_ptr<sd_bus, Close> m_bus;
    std::list<OwnerQuestion> m_questions; ///< where sd-bus finds them
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
    Handle m_patience; ///< with a bus that doesn't answer
    QString m_unavailableReason;
};

} // namespace fendrel
