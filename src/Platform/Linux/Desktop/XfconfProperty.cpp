#include "Platform/Linux/Desktop/XfconfProperty.h"

#include <QDBusReply>
#include <QDBusVariant>

namespace fendrel {

using namespace Qt::StringLiterals;

QDBusMessage XfconfProperty::call(const QString& method) const {
    const QString service = u"org.xfce.Xfconf"_s;
    auto call = QDBusMessage::createMethodCall(service, u"/org/xfce/Xfconf"_s, service, method);
    call << m_channel << m_property;
    return call;
}

Handle XfconfProperty::read(const WaitUntil& deadline, ReadDone done) const {
    return callOnBus(call(u"GetProperty"_s), deadline, [done = std::move(done)](const QDBusMessage& message) {
        const QDBusReply<QDBusVariant> reply(message);
        if (reply.isValid())
            done(reply.value().variant());
        else if (message.errorName() == "org.xfce.Xfconf.Error.PropertyNotFound"_L1 ||
                 message.errorName() == "org.xfce.Xfconf.Error.ChannelNotFound"_L1)
            done(QVariant());
        else
            done({});
    });
}

Handle XfconfProperty::write(const QVariant& value, const WaitUntil& deadline, WriteDone done) const {
    auto message = call(value.isValid() ? u"SetProperty"_s : u"ResetProperty"_s);
    if (value.isValid())
        message << QVariant::fromValue(QDBusVariant(value));
    else
        message << false; // not what lies below it
    return callOnBus(message, deadline, [done = std::move(done)](const QDBusMessage& reply) {
        done(reply.type() == QDBusMessage::ReplyMessage);
    });
}

} // namespace fendrel
