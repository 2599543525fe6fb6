#include "Table.h"
#include "Widgets/WidgetAccounts.h"
#include "fakes/FakeSecretStore.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

using Service = WidgetAccounts::Service;
using Problem = WidgetAccounts::Problem;
using MaybeProblem = std::optional<Problem>;

namespace {

struct World {
    World() {
        accounts.onChanged = [this](Service service) { told.append(enumName(service)); };
    }
    QStringList connected() const {
        QStringList list;
        for (const Service service : accounts.connected())
            list.append(enumName(service));
        return list;
    }

    FakeSecretStore store;
    WidgetAccounts accounts{store};
    QStringList told;
};

} // namespace

class WidgetAccountsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void looksOnceForWhatIsThere() {
        World world;
        world.store.secrets = {{u"stripe"_s, u"a"_s}, {u"sentry"_s, u"b"_s}, {u"somebody"_s, u"c"_s}};
        QVERIFY(world.store.asked.isEmpty());
        world.accounts.read();
        world.store.answer();
        world.accounts.read();
        world.store.answer();
        QCOMPARE(world.store.asked, (QStringList{u"rgithub"_s, u"rstripe"_s, u"rlemonSqueezy"_s, u"rpaddle"_s,
                                                 u"rdodo"_s, u"rvercel"_s, u"rlinear"_s, u"rsentry"_s}));
        QCOMPARE(world.connected(), (QStringList{u"stripe"_s, u"sentry"_s}));
        QVERIFY(world.told.isEmpty());
        for (const auto& each : WidgetAccounts::all())
            QCOMPARE(WidgetAccounts::description(each.service).name, each.name);
    }

    void saves_data() {
        const Table<QString, QString> row("typed", "kept");
        row("with a line break", u" \tghp_1\r\n"_s, u"ghp_1"_s);
        row("with a space inside", u"a b"_s, u"a b"_s);
        row("only spaces", u" \n "_s, {});
        row("empty", {}, {});
    }

    void saves() {
        QFETCH(const QString, typed);
        QFETCH(const QString, kept);
        World world;
        QCOMPARE(world.accounts.save(typed, Service::github), !kept.isEmpty());
        world.store.answer();
        QCOMPARE(world.store.secrets.value(u"github"_s), kept);
        const QStringList changed = kept.isEmpty() ? QStringList() : QStringList{u"github"_s};
        QCOMPARE(world.connected(), changed);
        QCOMPARE(world.told, changed);
        QCOMPARE(world.store.asked, kept.isEmpty()
                                        ? QStringList()
                                        : QStringList{u"org.fendrel.Fendrel.widgets github Fendrel widget key"_s});
    }

    void removes() {
        World world;
        world.store.secrets = {{u"linear"_s, u"a"_s}};
        world.accounts.read();
        world.store.answer();
        world.accounts.remove(Service::linear);
        QVERIFY(world.accounts.isBusy(Service::linear));
        world.store.answer();
        QVERIFY(!world.accounts.isBusy(Service::linear));
        QVERIFY(world.connected().isEmpty());
        QVERIFY(world.store.secrets.isEmpty());
        QCOMPARE(world.told, QStringList{u"linear"_s});
    }

    void aProblemChangesNothing() {
        World world;
        world.store.secrets = {{u"vercel"_s, u"old"_s}};
        world.accounts.read();
        world.store.answer();
        world.store.problem = Problem::locked;
        MaybeProblem answer;
        world.accounts.save(u"new"_s, Service::vercel, [&](MaybeProblem problem) { answer = problem; });
        world.accounts.save(u"new"_s, Service::github);
        world.accounts.remove(Service::vercel);
        world.store.answer();
        QCOMPARE(answer, Problem::locked);
        QCOMPARE(world.accounts.problem(Service::github), Problem::locked);
        QCOMPARE(world.connected(), QStringList{u"vercel"_s});
        QVERIFY(world.told.isEmpty());

        world.store.secrets[u"paddle"_s] = u"by somebody else"_s;
        world.accounts.unlock();
        world.store.answer();
        QCOMPARE(world.accounts.problem(Service::github), MaybeProblem());
        QCOMPARE(world.connected(), (QStringList{u"paddle"_s, u"vercel"_s}));
        QCOMPARE(world.told, QStringList{u"paddle"_s});
    }
};

QTEST_APPLESS_MAIN(WidgetAccountsTest)
#include "tst_WidgetAccounts.moc"
