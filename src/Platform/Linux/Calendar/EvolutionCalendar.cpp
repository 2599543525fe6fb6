#include "Platform/Linux/Calendar/EvolutionCalendar.h"

#include "Platform/Linux/Desktop/BusCall.h"

#include <QDBusConnection>
#include <QDBusObjectPath>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

QDBusMessage EvolutionCalendar::message(const QString& method, const QVariantList& arguments) const {
    auto message =
        QDBusMessage::createMethodCall(m_service, m_path, u"org.gnome.evolution.dataserver.Calendar"_s, method);
    message.setArguments(arguments);
    return message;
}

Handle EvolutionCalendar::call(const QString& method, const QVariantList& arguments, Done done) {
    if (!m_service.isEmpty())
        return callOnBus(message(method, arguments), {}, std::move(done));
    auto waiting = std::make_shared<Waiting>(
        Waiting{.method = method, .arguments = arguments, .done = std::move(done), .call = {}});
    m_waiting.push_back(waiting);
    if (m_waiting.size() == 1)
        open();
    return Handle([waiting] {
        waiting->isWanted = false;
        waiting->call.reset();
    });
}

void EvolutionCalendar::open() {
    auto factory = QDBusMessage::createMethodCall(
        u"org.gnome.evolution.dataserver.Calendar8"_s, u"/org/gnome/evolution/dataserver/CalendarFactory"_s,
        u"org.gnome.evolution.dataserver.CalendarFactory"_s,
        m_source.kind == EvolutionSource::Kind::events ? u"OpenCalendar"_s : u"OpenTaskList"_s);
    factory << m_source.uid;
    m_opening = callOnBus(factory, {}, [this](const QDBusMessage& made) {
        m_path = made.arguments().value(0).toString();
        const QString service = made.arguments().value(1).toString();
        if (made.type() != QDBusMessage::ReplyMessage || m_path.isEmpty() || service.isEmpty())
            return opened(made);
        auto question =
            QDBusMessage::createMethodCall(service, m_path, u"org.gnome.evolution.dataserver.Calendar"_s, u"Open"_s);
        m_opening = callOnBus(question, {}, [this](const QDBusMessage& reply) { opened(reply); });
    });
}

void EvolutionCalendar::opened(const QDBusMessage& reply) {
    if (reply.type() == QDBusMessage::ReplyMessage) {
        m_service = reply.service();
        // Names and values in turn, the values as GVariant prints them.
        const QStringList properties = reply.arguments().value(0).toStringList();
        const auto at = properties.indexOf(u"cal-email-address"_s);
        m_address = at < 0 ? QString() : properties.value(at + 1).remove(u'\'').toLower();
        onOpened(m_service);
        follow();
    }
    for (const auto waiting = std::exchange(m_waiting, {}); const auto& each : waiting) {
        if (!each->isWanted)
            continue;
        if (m_service.isEmpty())
            each->done(reply);
        else
            each->call = callOnBus(message(each->method, each->arguments), {}, each->done);
    }
}

void EvolutionCalendar::follow() {
    m_following = callOnBus(message(u"GetView"_s, {u"#t"_s}), {}, [this](const QDBusMessage& reply) {
        const QString path = reply.arguments().value(0).value<QDBusObjectPath>().path();
        m_isFollowed = !path.isEmpty();
        if (!m_isFollowed)
            return;
        const auto tell = [&](const QString& method, const QVariantList& arguments) {
            auto message = QDBusMessage::createMethodCall(m_service, path,
                                                          u"org.gnome.evolution.dataserver.CalendarView"_s, method);
            message.setArguments(arguments);
            QDBusConnection::sessionBus().send(message);
        };
        tell(u"SetFlags"_s, {0U}); // what is there already is not told
        tell(u"SetFieldsOfInterest"_s, {QStringList{u"UID"_s}});
        tell(u"Start"_s, {});
    });
}

} // namespace fendrel
