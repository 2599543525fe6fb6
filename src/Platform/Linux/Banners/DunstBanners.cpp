#include "Platform/Linux/Banners/DunstBanners.h"

#include <QDBusReply>
#include <QDBusVariant>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QDBusMessage propertyCall(const QString& method) {
    auto call = QDBusMessage::createMethodCall(u"org.freedesktop.Notifications"_s, u"/org/freedesktop/Notifications"_s,
                                               u"org.freedesktop.DBus.Properties"_s, method);
    call.setAutoStartService(false);
    call << u"org.dunstproject.cmd0"_s << u"paused"_s;
    return call;
}

} // namespace

Handle DunstBanners::read(const WaitUntil& deadline, ReadDone done) {
    return callOnBus(propertyCall(u"Get"_s), deadline, [done = std::move(done)](const QDBusMessage& message) {
        const QDBusReply<QDBusVariant> reply(message);
        if (!reply.isValid() || reply.value().variant().typeId() != QMetaType::Bool)
            return done({});
        done(reply.value().variant().toBool() ? Banners::quiet : Banners::shown);
    });
}

Handle DunstBanners::write(Banners banners, const WaitUntil& deadline, WriteDone done) {
    auto call = propertyCall(u"Set"_s);
    call << QVariant::fromValue(QDBusVariant(banners == Banners::quiet));
    return callOnBus(call, deadline, [done = std::move(done)](const QDBusMessage& reply) {
        done(reply.type() == QDBusMessage::ReplyMessage);
    });
}

} // namespace fendrel
