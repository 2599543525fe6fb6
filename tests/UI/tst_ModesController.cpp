#include "App/ControllerWorld.h"
#include "UI/Images/AppIcons.h"
#include "UI/Modes/ModesController.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct World : ControllerWorld {
    AppController& app = launch();
    AppIcons icons{app.workspace()};
    ModesController modes{app, icons};

    QString ids() const {
        QStringList all;
        for (const Mode& mode : app.engine().modes())
            all.append(mode.id);
        return all.join(u' ');
    }
    /// Where the dry run says that an application would go.
    QString place(const QString& bundleID) {
        const DryRunModel& rows = *modes.dryRun();
        for (int row = 0; row < rows.rowCount(); ++row) {
            const auto text = [&](const char* role) {
                return rows.data(rows.index(row), rows.roleNames().key(role)).toString();
            };
            if (text("bundleID") == bundleID)
                return text("place");
        }
        return {};
    }
};

} // namespace

class ModesControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void movesAModeToItsNewPlace() {
        World world;
        world.modes.move(0, 2);
        QCOMPARE(world.ids(), u"building social writing"_s);
        world.modes.move(2, 1);
        QCOMPARE(world.ids(), u"building writing social"_s);
        world.modes.move(0, 99); // let go below the last
        world.modes.move(0, -1);
        QCOMPARE(world.ids(), u"writing social building"_s);
    }

    void addsFromATemplateOrEmpty() {
        World world;
        QCOMPARE(world.modes.templates().size(), 4);
        world.modes.add(u"study"_s);
        QCOMPARE(world.modes.templates().size(), 3);
        QCOMPARE(world.app.engine().mode(u"study"_s)->apps, QStringList{world.notes}); // only what is installed
        world.modes.add({});
        world.modes.add({});
        const auto& all = world.app.engine().modes();
        QCOMPARE(all.size(), 6);
        QVERIFY(all[4].id != all[5].id && all[4].name != all[5].name && all[4].tint != all[5].tint);
        QCOMPARE(world.modes.editor()->modeID(), all[5].id);
    }

    void putsACopyBehindItsOriginal() {
        World world;
        world.modes.duplicate(u"writing"_s);
        const auto& all = world.app.engine().modes();
        QCOMPARE(all.size(), 4);
        QCOMPARE(all[1].apps, all[0].apps);
        QVERIFY(all[1].id != all[0].id);
        QCOMPARE(world.modes.editor()
                     ->apps()
                     ->index(0)
                     .data(world.modes.editor()->apps()->roleNames().key("note"))
                     .toString(),
                 u"also in Writing"_s);
    }

    void takesADeletionBack() {
        World world;
        world.modes.editor()->edit(u"writing"_s);
        const Mode writing = world.app.engine().current();
        world.modes.remove(u"writing"_s);
        QCOMPARE(world.ids(), u"building social"_s);
        QCOMPARE(world.modes.editor()->modeID(), u"building"_s);
        QCOMPARE(world.app.engine().current().id, u"building"_s);
        world.modes.undoRemove();
        QCOMPARE(world.ids(), u"writing building social"_s);
        QCOMPARE(world.app.engine().current(), writing);
        QCOMPARE(world.modes.editor()->modeID(), u"writing"_s);

        // Whoever chose another mode since then stays there.
        world.modes.remove(u"writing"_s);
        world.commit(u"social"_s);
        world.modes.undoRemove();
        QCOMPARE(world.app.engine().current().id, u"social"_s);

        // The template that was deleted is added anew, and the old one comes back beside it.
        world.modes.remove(u"building"_s);
        world.modes.add(u"building"_s);
        world.modes.undoRemove();
        QCOMPARE(world.app.engine().modes().size(), 4);
    }

    void forgetsADeletionAfterAWhile() {
        World world;
        world.modes.remove(u"social"_s);
        QCOMPARE(world.modes.removedName(), u"Social"_s);
        world.fake.clock->advance(10s);
        QCOMPARE(world.modes.removedName(), QString());
        world.modes.undoRemove();
        world.modes.remove(u"building"_s);
        world.modes.remove(u"writing"_s); // the last one stays
        QCOMPARE(world.ids(), u"writing"_s);
    }

    void triesTheModesOnWhatWasSeen() {
        World world;
        world.front(world.run(world.chat));
        world.front(world.run(u"org.test.Unknown"_s));
        world.front(world.run(u"com.apple.finder"_s));
        QCOMPARE(world.place(world.chat), u"Social"_s);
        QCOMPARE(world.place(u"org.test.Unknown"_s), u"Undecided"_s);
        QCOMPARE(world.place(u"com.apple.finder"_s), u"Every mode"_s);
        QCOMPARE(world.place(world.code), QString()); // was not in front

        world.app.classifier().correct(AppSubject{.bundleID = u"org.test.Unknown"_s}, {});
        world.modes.editor()->edit(u"building"_s);
        world.modes.editor()->addApp(world.chat);
        world.app.engine().removeApp(world.chat, u"social"_s);
        QCOMPARE(world.place(world.chat), u"Building"_s);
        QCOMPARE(world.place(u"org.test.Unknown"_s), u"No mode"_s);
    }

    void takesSitesInAnyForm() {
        World world;
        ModeEditor& editor = *world.modes.editor();
        const auto add = [&](const char* typed) { return editor.addSites(QString::fromUtf8(typed)); };
        QVERIFY(add("https://www.Example.org/a?b http://user@sub.example.net:80/")[u"text"_s].toString().isEmpty());
        QCOMPARE(world.app.engine().current().sites.last(2), (QStringList{u"example.org"_s, u"sub.example.net"_s}));

        const auto count = world.app.engine().current().sites.size();
        const auto problem = add("\"new.example\", <https://other.example/a_(b)>;(third.example)\nnonsense rubbish");
        QVERIFY(problem[u"isProblem"_s].toBool());
        const QString bad = problem[u"text"_s].toString();
        QVERIFY2(bad.contains(u"nonsense"_s) && bad.contains(u"rubbish"_s) && !bad.contains(u"<"_s), qPrintable(bad));
        QCOMPARE(world.app.engine().current().sites.mid(count),
                 (QStringList{u"new.example"_s, u"other.example"_s, u"third.example"_s}));
        const auto partly = add("EXAMPLE.org fourth.example");
        QVERIFY(!partly[u"isProblem"_s].toBool() && partly[u"text"_s].toString().contains(u"example.org"_s));
        QCOMPARE(world.app.engine().current().sites.size(), count + 4);
    }
};

QTEST_MAIN(ModesControllerTest)
#include "tst_ModesController.moc"
