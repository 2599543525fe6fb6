#include "Platform/Linux/Keyring/KeyringStore.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

using Problem = SecretStore::Problem;
using MaybeProblem = std::optional<Problem>;

const SecretStore::Item item{.service = u"org.example.Test"_s, .account = u"one"_s};

/// A session with a bus on which nothing is started by itself, and with a keyring when a test wants one.
class Session {
public:
    Session() {
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
    ~Session() {
        for (QProcess* process : {&m_keyring, &m_bus}) {
            process->kill();
            process->waitForFinished();
        }
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

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
    static QStringList labels() {
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

/// What the store says, waited for.
struct Asking {
    KeyringStore store;

    SecretStore::Secret read() {
        std::optional<SecretStore::Secret> answer;
        const Handle handle = store.read(item, [&](const SecretStore::Secret& secret) { answer = secret; });
        wait([&] { return answer.has_value(); });
        return answer.value_or(SecretStore::Secret(u"no answer came"_s));
    }
    QString text() {
        const auto secret = read();
        return secret ? secret->value_or(u"none"_s) : u"problem %1"_s.arg(static_cast<int>(secret.error()));
    }
    MaybeProblem save(const QString& label, const QString& secret) {
        return outcome([&](SecretStore::Done done) { return store.save(item, label, secret, std::move(done)); });
    }
    MaybeProblem remove() {
        return outcome([&](SecretStore::Done done) { return store.remove(item, std::move(done)); });
    }
    MaybeProblem unlock() {
        return outcome([&](SecretStore::Done done) { return store.unlock(std::move(done)); });
    }

private:
    static void wait(const std::function<bool()>& isOver) { QVERIFY(QTest::qWaitFor(isOver)); }
    static MaybeProblem outcome(const std::function<Handle(SecretStore::Done)>& ask) {
        std::optional<MaybeProblem> answer;
        const Handle handle = ask([&](MaybeProblem problem) { answer = problem; });
        wait([&] { return answer.has_value(); });
        return answer.value_or(Problem::failed);
    }
};

} // namespace

class KeyringTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Session> m_session;

private Q_SLOTS:
    void initTestCase() {
        m_session = std::make_unique<Session>();
        QVERIFY(m_session->isUp());
        qDBusRegisterMetaType<QMap<QString, QString>>();
    }
    void cleanupTestCase() { m_session.reset(); }

    void keepsSecrets() {
        Asking keyring;
        QCOMPARE(keyring.read().error(), Problem::missing);
        QCOMPARE(keyring.save(u"First"_s, u"a"_s), Problem::missing);
        QVERIFY(m_session->startKeyring()); // it is found when it comes later

        QCOMPARE(keyring.text(), u"none"_s);
        QCOMPARE(keyring.save(u"First"_s, u"sk_ä\n€"_s), MaybeProblem());
        QCOMPARE(keyring.text(), u"sk_ä\n€"_s);
        QCOMPARE(keyring.save(u"Second"_s, u"other"_s), MaybeProblem());
        QCOMPARE(keyring.text(), u"other"_s);
        QCOMPARE(Session::labels(), QStringList{u"First"_s});

        Session::lock();
        QCOMPARE(keyring.read().error(), Problem::locked);
        QCOMPARE(keyring.save(u"First"_s, u"lost"_s), Problem::locked); // nobody is there to give the password
        QCOMPARE(keyring.unlock(), Problem::locked);
        m_session->endKeyring();
        QVERIFY(m_session->startKeyring()); // which the user's password unlocks
        QCOMPARE(keyring.unlock(), MaybeProblem());
        QCOMPARE(keyring.text(), u"other"_s);

        QCOMPARE(keyring.remove(), MaybeProblem());
        QCOMPARE(keyring.text(), u"none"_s);
        QCOMPARE(keyring.remove(), MaybeProblem());
    }

    void nothingComesAfterTheHandle() {
        KeyringStore store;
        bool wasTold = false;
        store.save(item, u"Label"_s, u"kept"_s, [&](auto) { wasTold = true; }).reset();
        Asking other;
        QTRY_COMPARE(other.text(), u"kept"_s); // what was asked is done all the same
        QVERIFY(!wasTold);

        m_session->endKeyring();
        QCOMPARE(other.read().error(), Problem::missing);
    }
};

QTEST_GUILESS_MAIN(KeyringTest)
#include "tst_Keyring.moc"
