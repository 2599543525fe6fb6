#include "App/ControllerWorld.h"
#include "Table.h"

#include <QJsonDocument>
#include <QLocalSocket>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A focus session is on in the mode "writing". A browser is in front, with this process's socket as its extension;
/// "social" lists social.example, "writing" lists work.example.
struct World : ControllerWorld {
    World() {
        QDir().mkpath(fake.platform.folders.data);
        launch();
        engine().addSite(u"social.example"_s, u"social"_s);
        engine().addSite(u"work.example"_s, u"writing"_s);
        controller->focus().start();
        front(browser);
        extension = connectBrowser(browser);
    }
    std::unique_ptr<QLocalSocket> connectBrowser(qint64 pid) {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(fake.platform.folders.data + u"/bridge.sock"_s);
        const auto known = controller->bridge().browsers().size();
        socket->write("{\"type\":\"hello\",\"pids\":[" + QByteArray::number(pid) + "]}\n");
        if (!QTest::qWaitFor([&] { return controller->bridge().browsers().size() > known; }))
            qFatal("the browser is not known");
        return socket;
    }
    ModeEngine& engine() { return controller->engine(); }
    SiteDrift& sites() { return controller->drift().sites(); }
    /// The browser has this page in its active tab.
    void page(const char* url, int tab = 1, int connection = 0, const char* title = "A page", bool isFocused = true) {
        controller->bridge().onTab({.browser = BrowserID(connection),
                                    .tabID = TabID(tab),
                                    .url = QUrl(QString::fromLatin1(url)),
                                    .title = QString::fromLatin1(title),
                                    .isFocused = isFocused});
    }
    void wait(Clock::Duration duration) { fake.clock->advance(duration); }
    /// What the extension was told to do: "veil 1 social.example Social", "unveil 1", "back 1".
    QStringList told(QLocalSocket& socket) {
        QStringList messages;
        while (socket.canReadLine() || socket.waitForReadyRead(0)) {
            const auto message = QJsonDocument::fromJson(socket.readLine()).object();
            QStringList words{message[u"type"].toString()};
            if (words.first() == "state"_L1)
                continue;
            words.append(QString::number(message[u"tabId"].toInt()));
            if (words.first() == "veil"_L1)
                words.append({message[u"site"].toString(), message[u"mode"].toString()});
            messages.append(words.join(u' '));
        }
        return messages;
    }
    QStringList told() { return told(*extension); }
    QString veils() {
        QStringList list;
        for (const auto& veiled : sites().veiledTabs())
            list.append(veiled.site + u'>' + veiled.owner.id);
        return list.join(u' ');
    }

    const qint64 browser = run(u"org.chromium.Chromium"_s), editor = run(notes);
    std::unique_ptr<QLocalSocket> extension;
};

const char* social = "https://www.social.example/feed";
const char* work = "https://work.example/";
using Do = std::function<void(World&)>;

} // namespace

class SiteDriftTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void veilsAtOnceAndAsksLater() {
        World world;
        world.page(social);
        QCOMPARE(world.told(), QStringList{u"veil 1 social.example Social"_s});
        QCOMPARE(std::get<SiteSubject>(world.controller->classifier().front()->subject).host, u"social.example"_s);
        world.wait(1499ms);
        QCOMPARE(world.gated(), QString());
        world.page(social, 1, 0, "A page (1)"); // it renames itself, which puts nothing off
        world.wait(1ms);
        QCOMPARE(world.gated(), u"social.example"_s);
        world.page(social);
        world.wait(10s);
        QCOMPARE(world.gated(), u"social.example"_s);
        world.page(work); // the page went by itself
        QCOMPARE(world.gated() + world.veils(), QString());
        QCOMPARE(world.told().last(), u"unveil 1"_s);
    }

    void asksOnlyAboutWhatIsSeen_data() {
        const Table<Do, QString> row("meanwhile", "veils");
        const QString veiled = u"social.example>social"_s;
        row(
            "another tab", [](World& world) { world.page(work, 2); }, veiled);
        row("another site", [](World& world) { world.page(work); }, {});
        row("no site", [](World& world) { world.page("about:blank"); }, {});
        row(
            "another application", [](World& world) { world.front(world.editor); }, veiled);
        row(
            "nothing in front", [](World& world) { world.front({}); }, veiled);
        row(
            "another browser's question",
            [](World& world) {
                const qint64 pid = world.run(u"org.mozilla.firefox"_s);
                const auto other = world.connectBrowser(pid);
                world.front(pid);
                world.page(work, 1, 1);
            },
            veiled);
        row("closed", [](World& world) { world.controller->bridge().onClosed(BrowserID(0), TabID(1)); }, {});
        row("the browser ended",
            [](World& world) {
                world.extension->abort();
                QTRY_VERIFY(world.controller->bridge().browsers().isEmpty());
            },
            {});
        row("the session ended", [](World& world) { world.controller->focus().stop(); }, {});
        row("the mode changed", [](World& world) { world.commit(u"social"_s); }, {});
        row("added to the mode", [](World& world) { world.engine().addSite(u"social.example"_s, u"writing"_s); }, {});
        row("on no list", [](World& world) { world.engine().removeSite(u"social.example"_s, u"social"_s); }, {});
        row("corrected", [](World& world) { world.controller->drift().correctFront(u"writing"_s); }, {});
        row("corrected: none", [](World& world) { world.controller->drift().correctFront({}); }, {});
    }

    void asksOnlyAboutWhatIsSeen() {
        QFETCH(const Do, meanwhile);
        World world;
        world.page(social);
        world.wait(1s);
        meanwhile(world);
        QTEST(world.veils(), "veils");
        world.wait(5s);
        QCOMPARE(world.gated(), QString());
        QTEST(world.veils(), "veils");
    }

    void asksAgainWhenTheUserComesBack_data() {
        const Table<Do, Do> row("leave", "comeBack");
        row(
            "tabs", [](World& world) { world.page(work, 2); }, [](World& world) { world.page(social); });
        row(
            "applications", [](World& world) { world.front(world.editor); },
            [](World& world) { world.front(world.browser); });
    }

    void asksAgainWhenTheUserComesBack() {
        QFETCH(const Do, leave);
        QFETCH(const Do, comeBack);
        World world;
        world.page(social);
        world.wait(1500ms);
        QCOMPARE(world.gated(), u"social.example"_s);
        world.controller->drift().switchToOwner(); // which nobody wants any more who left
        leave(world);
        QVERIFY(!world.engine().pending());
        QCOMPARE(world.gated(), QString());
        QCOMPARE(world.veils(), u"social.example>social"_s);
        world.controller->bridge().onAsk(BrowserID(0), TabID(1)); // not seen, so not asked about
        QCOMPARE(world.gated(), QString());
        comeBack(world);
        QCOMPARE(world.gated(), QString());
        world.wait(1500ms);
        QCOMPARE(world.gated(), u"social.example"_s);
        world.controller->bridge().onAsk(BrowserID(0), TabID(1)); // and on demand, as often as it is wanted
        QCOMPARE(world.gated(), u"social.example"_s);
        world.controller->bridge().onClosed(BrowserID(0), TabID(1));
        QCOMPARE(world.gated() + world.veils(), QString());
    }

    void answers_data() {
        // Whether the page is let be when it is opened once more, and in the next session.
        const Table<Do, QStringList, bool, bool> row("answer", "told", "isLetBe", "isLetBeLater");
        const QStringList unveiled{u"unveil 1"_s};
        row(
            "stay", [](World& world) { world.controller->drift().stay(); }, {u"back 1"_s}, false, false);
        row(
            "allow once", [](World& world) { world.controller->drift().allowOnce(); }, unveiled, true, false);
        row(
            "add", [](World& world) { world.controller->drift().addToMode(); }, unveiled, true, true);
        row(
            "switch",
            [](World& world) {
                world.controller->drift().switchToOwner();
                QCOMPARE(world.told(), QStringList());
                world.wait(15s);
            },
            unveiled, true, true);
        row(
            "correct", [](World& world) { world.controller->drift().correctFront(u"writing"_s); }, unveiled, true,
            false);
    }

    void answers() {
        QFETCH(const Do, answer);
        QFETCH(const bool, isLetBe);
        QFETCH(const bool, isLetBeLater);
        World world;
        world.page(social);
        world.wait(1500ms);
        world.told();
        world.takeRequests();
        answer(world);
        QTEST(world.told(), "told");
        QCOMPARE(world.gated() + world.veils(), QString());
        QCOMPARE(world.takeRequests(), QStringList{u"activate %1"_s.arg(world.browser)});
        world.page(work);
        world.page(social);
        QCOMPARE(world.veils().isEmpty(), isLetBe);
        world.controller->focus().stop();
        world.controller->focus().start();
        QCOMPARE(world.veils().isEmpty(), isLetBeLater);
    }

    void aListGoesBeforeACorrectionToAThirdMode() {
        World world;
        world.page(social);
        world.wait(1500ms);
        world.controller->drift().correctFront(u"building"_s);
        world.page(social);
        QCOMPARE(world.veils(), u"social.example>social"_s);
        QCOMPARE(world.controller->gate().blocked()->owner->id, u"social"_s);
    }

    void aProfileInTheBackgroundIsNotInFront() {
        World world;
        const auto other = world.connectBrowser(world.browser); // the same process
        world.page(work, 1, 1);
        world.page(social, 1, 0, "A page", false);
        world.wait(5s);
        QCOMPARE(world.veils() + world.gated(), u"social.example>social"_s);
        QCOMPARE(std::get<SiteSubject>(world.controller->classifier().front()->subject).host, u"work.example"_s);
        world.page(social); // its window is raised
        world.wait(1s);
        world.page(work, 1, 1, "A page that renames itself", false);
        world.wait(500ms);
        QCOMPARE(world.gated(), u"social.example"_s);
    }

    void aStayThatDoesNotLeaveIsTriedAnew() {
        World world;
        world.page(social);
        world.wait(1500ms);
        world.controller->drift().stay();
        world.page(social, 1, 0, "Leaving"); // the browser is slow
        world.told();
        QCOMPARE(world.veils(), QString());
        world.wait(2s);
        QCOMPARE(world.told(), QStringList{u"veil 1 social.example Social"_s});
        world.wait(1500ms);
        QCOMPARE(world.gated(), u"social.example"_s);
    }

    void theModelStopsOnlyWhenCertain() {
        World world;
        world.fake.languageModel->setUnavailable({});
        world.page("http://unknown.example/");
        world.page(work, 2); // while the model thinks
        QVERIFY(world.answer("social", "certain"));
        world.wait(2s);
        QCOMPARE(world.veils(), QString()); // it is not seen any more
        world.page("http://unknown.example/");
        QCOMPARE(world.veils(), u"unknown.example>social"_s);
        world.page("http://unsure.example/", 3);
        QVERIFY(world.answer("social", "likely"));
        world.wait(2s);
        QCOMPARE(world.gated(), QString());
        QCOMPARE(world.veils(), u"unknown.example>social"_s);
    }

    void aBrowserInTheBackgroundIsNotWhatTheUserLooksAt() {
        World world;
        world.front(world.editor);
        const auto before = world.controller->classifier().front();
        world.page("about:blank");
        world.page(work);
        QCOMPARE(world.controller->classifier().front(), before);
        world.page(social); // veiled all the same, before it is seen
        world.wait(5s);
        QCOMPARE(world.gated(), QString());
        world.front(world.browser);
        world.wait(1500ms);
        QCOMPARE(world.gated(), u"social.example"_s);
    }

    void nothingIsJudgedBeforeTheFirstRunIsOver() {
        World world;
        world.fake.settings->values.insert(u"onboardingDone"_s, false);
        world.page(social);
        world.wait(5s);
        QCOMPARE(world.told(), QStringList());
        QVERIFY(world.sites().activeTab(BrowserID(0))); // but known when it is
    }
};

QTEST_GUILESS_MAIN(SiteDriftTest)
#include "tst_SiteDrift.moc"
