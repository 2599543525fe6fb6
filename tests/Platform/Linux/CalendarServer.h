#pragma once

#include "Files.h"
#include "Platform/Linux/KeyringSession.h"

#include <QDBusConnectionInterface>

namespace fendrel {

/// A private session with the desktop's calendar server, whose user is me@example.org.
class CalendarServer {
public:
    CalendarServer() {
        qputenv("GIO_USE_VFS", "local");
        qputenv("GSETTINGS_BACKEND", "memory");
        qputenv("XDG_CONFIG_HOME", qgetenv("HOME") + "/config");
        qputenv("XDG_CACHE_HOME", qgetenv("HOME") + "/cache");
        putFile(qEnvironmentVariable("XDG_CONFIG_HOME") + u"/evolution/sources/me.source"_s,
                "[Data Source]\nDisplayName=Me\nEnabled=true\n[Mail Identity]\nAddress=Me@Example.org\n");
    }
    ~CalendarServer() {
        for (QProcess* process : {&m_factory, &m_registry}) {
            process->kill();
            process->waitForFinished();
        }
    }
    CalendarServer(const CalendarServer&) = delete;
    CalendarServer& operator=(const CalendarServer&) = delete;

    bool start() { return run(m_registry, u"source-registry"_s, u"Sources5"_s) && startFactory(); }
    bool startFactory() { return run(m_factory, u"calendar-factory"_s, u"Calendar8"_s); }
    void killFactory() {
        m_factory.kill();
        m_factory.waitForFinished();
    }

    /// Calls the user's own calendar or list of tasks, as another program does.
    QVariant call(bool isTasks, const QString& method, const QVariantList& arguments) {
        const auto opened = send(name(u"Calendar8"_s), u"/org/gnome/evolution/dataserver/CalendarFactory"_s,
                                 u"CalendarFactory"_s, isTasks ? u"OpenTaskList"_s : u"OpenCalendar"_s,
                                 {isTasks ? u"system-task-list"_s : u"system-calendar"_s});
        const QString path = opened.arguments().value(0).toString();
        const QString service = opened.arguments().value(1).toString();
        send(service, path, u"Calendar"_s, u"Open"_s, {});
        const auto reply = send(service, path, u"Calendar"_s, method, arguments);
        if (reply.type() != QDBusMessage::ReplyMessage)
            qWarning() << method << reply.errorMessage();
        return reply.arguments().value(0);
    }

private:
    static QString name(const QString& part) { return u"org.gnome.evolution.dataserver."_s + part; }
    static QDBusMessage send(const QString& service, const QString& path, const QString& interface,
                             const QString& method, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(service, path, name(interface), method);
        message.setArguments(arguments);
        return QDBusConnection::sessionBus().call(message);
    }
    static bool run(QProcess& process, const QString& program, const QString& service) {
        process.start(u"/usr/libexec/evolution-"_s + program);
        return QTest::qWaitFor(
            [&] { return QDBusConnection::sessionBus().interface()->isServiceRegistered(name(service)).value(); },
            20'000);
    }

    KeyringSession m_session; ///< first: it makes the home
    QProcess m_registry;
    QProcess m_factory;
};

} // namespace fendrel
