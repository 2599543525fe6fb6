#include "Platform/Linux/Desktop/BusCall.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QPointer>

#include <algorithm>

namespace fendrel {

Handle callOnBus(const QDBusMessage& message, const WaitUntil& deadline,
                 std::function<void(const QDBusMessage& reply)> done) {
    const auto bus = QDBusConnection::sessionBus();
    if (deadline) {
        // A time-out of zero would be none.
        const auto milliseconds = std::clamp<qint64>(deadline->remainingTime(), 1, 60'000);
        done(bus.call(message, QDBus::Block, static_cast<int>(milliseconds)));
        return {};
    }
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, done = std::move(done)] {
        const QDBusMessage reply = watcher->reply();
        watcher->deleteLater();
        done(reply);
    });
    return Handle([watcher = QPointer(watcher)] { delete watcher.data(); });
}

} // namespace fendrel
