#include "Platform/Linux/Desktop/StatusNotifierArea.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.kde.StatusNotifierWatcher"_s;
const QString path = u"/StatusNotifierWatcher"_s;

} // namespace

StatusNotifierArea::StatusNotifierArea()
    : m_watcher(service, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierArea::ask);
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setAvailable(false); });
    // The watcher is there before the panel that shows its icons.
    QDBusConnection::sessionBus().connect(service, path, service, u"StatusNotifierHostRegistered"_s, this,
                                          SLOT(hostRegistered()));
    ask();
}

void StatusNotifierArea::ask() {
    auto question = QDBusMessage::createMethodCall(service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << service << u"IsStatusNotifierHostRegistered"_s;
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (reply.isValid())
            setAvailable(reply.value().variant().toBool());
    });
}

void StatusNotifierArea::setAvailable(bool isAvailable) {
    if (isAvailable == m_isAvailable)
        return;
    m_isAvailable = isAvailable;
    onChanged();
}

} // namespace fendrel
