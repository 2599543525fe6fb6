#include "Platform/Linux/Notifications/NotificationMonitor.h"

#include "Base/Log.h"
#include "Platform/Linux/Notifications/NotificationDecoding.h"

#include <QCoreApplication>

#include <poll.h>
#include <systemd/sd-bus.h>

#include <array>
#include <cerrno>
#include <chrono>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds patience{30};

constexpr auto bus = "org.freedesktop.DBus";
constexpr auto busPath = "/org/freedesktop/DBus";

// Everything else on the bus is none of our business.
constexpr auto serverOwner = "type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',"
                             "arg0='org.freedesktop.Notifications'";
constexpr auto portalOwners = "type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',"
                              "arg0namespace='org.freedesktop.impl.portal.desktop'";
constexpr std::array rules{
    "type='method_call',interface='org.freedesktop.Notifications',member='Notify'",
    "type='method_return',sender='org.freedesktop.Notifications'",
    "type='method_call',interface='org.freedesktop.portal.Notification',member='AddNotification'",
    "type='method_call',interface='org.freedesktop.impl.portal.Notification',member='AddNotification'",
    "type='method_call',interface='org.gtk.Notifications',member='AddNotification'",
    serverOwner,
    portalOwners,
};

struct Unreference {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, Unreference>;

QString unreachable(int code) {
    return QCoreApplication::translate("Notifications",
                                       "Fendrel can't reach the session bus, so it doesn't see notifications (%1).")
        .arg(qt_error_string(-code));
}

} // namespace

void NotificationMonitor::Close::operator()(sd_bus* connection) const {
    sd_bus_close(connection); // and not flush: nothing is to be waited for
    sd_bus_unref(connection);
}

NotificationMonitor::NotificationMonitor(const QString& address, Clock& clock)
    : m_patience(clock.after(patience, [this] { fail(unreachable(-ETIMEDOUT)); })) {
    if (const int result = open(address); result < 0)
        fail(unreachable(result));
}

NotificationMonitor::~NotificationMonitor() = default;

QString NotificationMonitor::sessionBus() {
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    return address.isEmpty() ? u"unix:path=%1/bus"_s.arg(qEnvironmentVariable("XDG_RUNTIME_DIR")) : address;
}

int NotificationMonitor::open(const QString& address) {
    sd_bus* connection = nullptr;
    if (const int result = sd_bus_new(&connection); result < 0)
        return result;
    m_bus.reset(connection);
    for (const int result : {sd_bus_set_address(connection, address.toUtf8().constData()),
                             sd_bus_set_bus_client(connection, 1), sd_bus_set_monitor(connection, 1)}) {
        if (result < 0)
            return result;
    }
    if (const int result = sd_bus_start(connection); result < 0)
        return result;
    const int descriptor = sd_bus_get_fd(connection);
    if (descriptor < 0)
        return descriptor;
    m_readable = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    m_writable = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Write);
    for (auto* notifier : {m_readable.get(), m_writable.get()})
        connect(notifier, &QSocketNotifier::activated, this, &NotificationMonitor::read);
    return askNames();
}

int NotificationMonitor::askNames() {
    // Heard from now on, so that no change of owner falls between the question and the listening.
    for (const char* rule : {serverOwner, portalOwners}) {
        const int result =
            sd_bus_call_method_async(m_bus.get(), nullptr, bus, busPath, bus, "AddMatch", nullptr, nullptr, "s", rule);
        if (result < 0)
            return result;
    }
    const auto told = [](sd_bus_message* answer, void* self, sd_bus_error*) {
        return static_cast<NotificationMonitor*>(self)->namesTold(answer);
    };
    return sd_bus_call_method_async(m_bus.get(), nullptr, bus, busPath, bus, "ListNames", told, this, nullptr);
}

int NotificationMonitor::namesTold(sd_bus_message* answer) {
    const auto told = [](sd_bus_message* owner, void* question, sd_bus_error*) {
        const auto* asked = static_cast<OwnerQuestion*>(question);
        const char* name = nullptr;
        if (sd_bus_message_is_method_error(owner, nullptr) == 0 &&
            sd_bus_message_read_basic(owner, SD_BUS_TYPE_STRING, &name) > 0)
            asked->monitor->onMessage(
                notificationMessage::NewOwner{.name = asked->name, .owner = QString::fromUtf8(name)});
        return 0;
    };
    sd_bus_message_enter_container(answer, SD_BUS_TYPE_ARRAY, "s");
    for (const char* name = nullptr; sd_bus_message_read_basic(answer, SD_BUS_TYPE_STRING, &name) > 0;) {
        if (!QString::fromUtf8(name).startsWith(notificationNames::portalParts))
            continue;
        m_questions.push_back({.monitor = this, .name = QString::fromUtf8(name)});
        sd_bus_call_method_async(m_bus.get(), nullptr, bus, busPath, bus, "GetNameOwner", told, &m_questions.back(),
                                 "s", name);
    }
    return becomeMonitor();
}

int NotificationMonitor::becomeMonitor() {
    sd_bus_message* call = nullptr;
    if (const int result = sd_bus_message_new_method_call(m_bus.get(), &call, bus, busPath,
                                                          "org.freedesktop.DBus.Monitoring", "BecomeMonitor");
        result < 0)
        return result;
    const Message owned(call);
    sd_bus_message_open_container(call, SD_BUS_TYPE_ARRAY, "s");
    for (const char* rule : rules)
        sd_bus_message_append_basic(call, SD_BUS_TYPE_STRING, rule);
    sd_bus_message_close_container(call);
    sd_bus_message_append(call, "u", 0U);
    const auto told = [](sd_bus_message* answer, void* self, sd_bus_error*) {
        return static_cast<NotificationMonitor*>(self)->monitorTold(answer);
    };
    return sd_bus_call_async(m_bus.get(), nullptr, call, told, this, 0);
}

int NotificationMonitor::monitorTold(sd_bus_message* answer) {
    m_patience.reset();
    if (const auto* error = sd_bus_message_get_error(answer)) {
        qCWarning(logDesktop).noquote() << "The session bus refuses a monitor:" << error->name << error->message;
        fail(QCoreApplication::translate("Notifications", "The session bus doesn't let Fendrel see notifications (%1).")
                 .arg(QString::fromUtf8(error->message)));
    }
    return 0;
}

void NotificationMonitor::read() {
    for (;;) {
        sd_bus_message* next = nullptr;
        const int result = sd_bus_process(m_bus.get(), &next);
        const Message message(next);
        if (result < 0 || sd_bus_is_open(m_bus.get()) <= 0)
            return fail(QCoreApplication::translate(
                "Notifications",
                "The connection to the session bus was lost. Start Fendrel again to see notifications."));
        if (!m_unavailableReason.isEmpty())
            return;
        if (result == 0)
            break;
        if (message) {
            if (const auto decoded = decodeNotification(message.get()))
                onMessage(*decoded);
        }
    }
    m_writable->setEnabled((sd_bus_get_events(m_bus.get()) & POLLOUT) != 0);
}

void NotificationMonitor::fail(const QString& reason) {
    m_unavailableReason = reason;
    m_patience.reset();
    for (auto* notifier : {m_readable.get(), m_writable.get()}) {
        if (notifier != nullptr)
            notifier->setEnabled(false);
    }
    onUnavailable();
}

} // namespace fendrel
