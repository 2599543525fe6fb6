#include "Platform/Linux/Banners/PlasmaBanners.h"

#include "Platform/Shared/AtNextTurn.h"

#include <QDBusReply>
#include <QGuiApplication>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QDBusMessage call(const QString& method) {
    const QString service = u"org.freedesktop.Notifications"_s;
    auto call = QDBusMessage::createMethodCall(service, u"/org/freedesktop/Notifications"_s, service, method);
    call.setAutoStartService(false);
    return call;
}

} // namespace

Handle PlasmaBanners::read(const WaitUntil& deadline, ReadDone done) {
    const auto answer = [done = std::move(done), now = m_wish ? Banners::quiet : Banners::shown] { done(now); };
    if (!deadline)
        return atNextTurn(answer);
    answer();
    return {};
}

Handle PlasmaBanners::write(Banners banners, const WaitUntil& deadline, WriteDone done) {
    if (banners == Banners::quiet) {
        auto wish = call(u"Inhibit"_s);
        wish << QGuiApplication::desktopFileName() << u"Notifications are held while you work"_s << QVariantMap();
        return callOnBus(wish, deadline, [this, done = std::move(done)](const QDBusMessage& message) {
            const QDBusReply<uint> reply(message);
            if (reply.isValid())
                m_wish = reply.value();
            done(reply.isValid());
        });
    }
    auto end = call(u"UnInhibit"_s);
    end << m_wish.value_or(0);
    m_wish.reset();
    // Refused by a server that has started anew: it does not know of the wish any more.
    return callOnBus(end, deadline, [done = std::move(done)](const QDBusMessage&) { done(true); });
}

} // namespace fendrel
