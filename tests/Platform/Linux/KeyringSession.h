#pragma once

#include "Ports/SecretStore.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace fendrel {

using namespace Qt::StringLiterals;

/// A session with a bus on which nothing is started by itself, and with a keyring when a test wants one.
class KeyringSession {
public:
    KeyringSession() {
        qDBusRegisterMetaType<QMap<QString, QString>>();
        const QByteArray home = m_home.path().toUtf8();
        qputenv("HOME", home);
        qputenv("XDG_DATA_HOME", home);
        qputenv("XDG_RUNTIME_DIR", home);
        qunsetenv("DISPLAY"); // nothing that could ask anybody
        m_bus.start(u"dbus-daemon"_s, {u"--nofork"_s, u"--nopidfile"_s, u"--print-address"_s,
                                       u"--config-file="_s + QStringLiteral(BUS_CONFIGURATION)});
        if (m_bus.waitForReadyRead())
            qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
    }
    ~KeyringSession() {
        for (QProcess* process : {&m_keyring, &m_bus}) {
            process->kill();
            process->waitForFinished();
        }
    }
    KeyringSession(const KeyringSession&) = delete;
    KeyringSession& operator=(const KeyringSession&) = delete;

    bool isUp() const { return QDBusConnection::sessionBus().isConnected(); }
    bool startKeyring() {
        m_keyring.start(u"gnome-keyring-daemon"_s, {u"--foreground"_s, u"--unlock"_s, u"--components=secrets"_s});
        m_keyring.write("pass");
        m_keyring.closeWriteChannel();
        return QTest::qWaitFor(
            [this] { return send(u"org.freedesktop.DBus.Peer"_s, u"Ping"_s).type() == QDBusMessage::ReplyMessage; });
    }
    void endKeyring() {
        m_keyring.kill();
        m_keyring.waitForFinished();
    }
    static void lock() {
        send(secrets, u"Lock"_s,
             {QVariant::fromValue(QList{QDBusObjectPath(u"/org/freedesktop/secrets/aliases/default"_s)})});
    }
    static QStringList labels(const SecretStore::Item& item) {
        const auto found = send(
            secrets, u"SearchItems"_s,
            {QVariant::fromValue(QMap<QString, QString>{{u"service"_s, item.service}, {u"account"_s, item.account}})});
        QStringList list;
        for (const auto& argument : found.arguments()) {
            for (const auto& path : qdbus_cast<QList<QDBusObjectPath>>(argument)) {
                auto question =
                    QDBusMessage::createMethodCall(name, path.path(), u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
                question << u"org.freedesktop.Secret.Item"_s << u"Label"_s;
                list.append(QDBusConnection::sessionBus()
                                .call(question)
                                .arguments()
                                .value(0)
                                .value<QDBusVariant>()
                                .variant()
                                .toString());
            }
        }
        return list;
    }

private:
    static inline const QString name = u"org.freedesktop.secrets"_s;
    static inline const QString secrets = u"org.freedesktop.Secret.Service"_s;

    static QDBusMessage send(const QString& interface, const QString& method, const QVariantList& arguments = {}) {
        auto message = QDBusMessage::createMethodCall(name, u"/org/freedesktop/secrets"_s, interface, method);
        message.setArguments(arguments);
        return QDBusConnection::sessionBus().call(message);
    }

    QTemporaryDir m_home;
    QProcess m_bus;
    QProcess m_keyring;
};

} // namespace fendrel
