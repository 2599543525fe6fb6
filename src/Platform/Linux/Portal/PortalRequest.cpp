#include "Platform/Linux/Portal/PortalRequest.h"

#include "Base/Log.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>
#include <QRandomGenerator>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

const QString PortalRequest::service = u"org.freedesktop.portal.Desktop"_s;
const QString PortalRequest::path = u"/org/freedesktop/portal/desktop"_s;

namespace {
const QString requestInterface = u"org.freedesktop.portal.Request"_s;
}

Handle PortalRequest::ask(QObject* owner, const QString& interface, const QString& method, QVariantList arguments,
                          QVariantMap options, Done done) {
    // Nobody else may guess it, or they could answer for the portal.
    const QString token = u"fendrel%1"_s.arg(QRandomGenerator::system()->generate64(), 0, 16);
    options.insert(u"handle_token"_s, token);
    arguments.append(options);
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);

    const QPointer request(new PortalRequest(owner, std::move(done)));
    const QString sender = QDBusConnection::sessionBus().baseService().sliced(1).replace(u'.', u'_');
    // Before the call: the answer may come as soon as its reply.
    request->listen(path + u"/request/"_s + sender + u'/' + token);
    request->call(message);
    return Handle([request] {
        if (request)
            request->abandon();
    });
}

PortalRequest::PortalRequest(QObject* owner, Done done)
    : QObject(owner),
      m_done(std::move(done)),
      m_portal(service, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&m_portal, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString& before, const QString&) {
                if (!before.isEmpty()) // it may be started by our call
                    finish({});
            });
}

void PortalRequest::listen(const QString& handle) {
    auto bus = QDBusConnection::sessionBus();
    const QString signal = u"Response"_s;
    if (!m_handle.isEmpty())
        bus.disconnect(service, m_handle, requestInterface, signal, this, SLOT(responded(uint, QVariantMap)));
    m_handle = handle;
    bus.connect(service, m_handle, requestInterface, signal, this, SLOT(responded(uint, QVariantMap)));
}

void PortalRequest::call(const QDBusMessage& message) {
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusObjectPath> reply = *answer;
        if (reply.isError()) {
            qCWarning(logDesktop).noquote() << "The desktop portal:" << reply.error().message();
            close(); // one that is only slow would still show it
            finish({});
            return;
        }
        m_isAccepted = true;
        if (reply.value().path() != m_handle)
            listen(reply.value().path()); // older portals choose it themselves
        if (!m_isWanted)
            abandon();
    });
}

/// What the portal has not taken yet, it could not close either.
void PortalRequest::abandon() {
    m_isWanted = false;
    m_done = {};
    if (!m_isAccepted)
        return;
    close();
    finish({});
}

void PortalRequest::close() {
    auto message = QDBusMessage::createMethodCall(service, m_handle, requestInterface, u"Close"_s);
    message.setAutoStartService(false);
    QDBusConnection::sessionBus().send(message);
}

void PortalRequest::responded(uint code, const QVariantMap& results) {
    finish(Response{.code = code, .results = results});
}

void PortalRequest::finish(const std::optional<Response>& response) {
    deleteLater();
    if (const auto done = std::exchange(m_done, {}))
        done(response);
}

} // namespace fendrel
