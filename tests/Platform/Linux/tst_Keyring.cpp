#include "KeyringSession.h"
#include "Platform/Linux/Keyring/KeyringStore.h"

#include <QtTest>

#include <memory>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

using Problem = SecretStore::Problem;
using MaybeProblem = std::optional<Problem>;

const SecretStore::Item item{.service = u"org.example.Test"_s, .account = u"one"_s};

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

    std::unique_ptr<KeyringSession> m_session;

private Q_SLOTS:
    void initTestCase() {
        m_session = std::make_unique<KeyringSession>();
        QVERIFY(m_session->isUp());
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
        QCOMPARE(KeyringSession::labels(item), QStringList{u"First"_s});

        KeyringSession::lock();
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
