#include "App/ControllerWorld.h"
#include "Control/CommandHandlers.h"
#include "fakes/FakeSecretStore.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace fendrel;
using namespace fendrel::control;
using namespace Qt::StringLiterals;

namespace {

const QString secret = u"sk_live_51Hx"_s;

struct World : ControllerWorld {
    World() {
        auto made = std::make_unique<FakeSecretStore>();
        store = made.get();
        fake.platform.secrets = std::move(made);
        handlers.emplace(launch());
    }
    /// What a script would see of the answer; the words are typed and the key comes on standard input.
    QByteArray say(const QString& words, const QString& input = {}) {
        const Parsed parsed = parse(words.split(u' '));
        if (!parsed.request)
            return "typed wrongly";
        Request request = *parsed.request;
        request.options.insert(secretOption, input);
        QByteArray said;
        handlers->run(request, [&](const CommandHandlers::Answer& answer) {
            said += answer ? QJsonDocument(answer->toObject()).toJson(QJsonDocument::Compact) : answer.error().toUtf8();
        });
        store->answer();
        seen += said;
        return said;
    }

    FakeSecretStore* store{};
    std::optional<CommandHandlers> handlers;
    QByteArray seen;
};

} // namespace

class AccountCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keysGoInAndNeverOut() {
        World world;
        QCOMPARE(world.say(u"account set stripe"_s, secret + u'\n'), "{}");
        QCOMPARE(world.store->secrets.value(u"stripe"_s), secret);
        QVERIFY(world.say(u"account list"_s).contains(R"("stripe":"connected")"));
        QVERIFY(world.say(u"account list"_s).contains(R"("github":"not connected")"));
        QCOMPARE(world.say(u"account set stripe"_s, u" "_s), "the key is empty");
        // In the wrong place it is refused, and not repeated either.
        QCOMPARE(world.say(u"account set stripe "_s + secret), "typed wrongly");
        QVERIFY(world.say(u"account set "_s + secret, secret).startsWith("unknown service"));
        QCOMPARE(world.say(u"account remove stripe"_s), "{}");
        QVERIFY(world.store->secrets.isEmpty());
        world.store->problem = SecretStore::Problem::locked;
        QCOMPARE(world.say(u"account set stripe"_s, secret), "the keyring is locked");
        QVERIFY(world.say(u"account list"_s).contains(R"("stripe":"the keyring is locked")"));
        QVERIFY2(!world.seen.contains(secret.toUtf8()), world.seen.constData());
    }
};

QTEST_GUILESS_MAIN(AccountCommandsTest)
#include "tst_AccountCommands.moc"
