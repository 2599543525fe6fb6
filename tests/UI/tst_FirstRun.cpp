#include "App/ControllerWorld.h"
#include "UI/Images/AppIcons.h"
#include "UI/Setup/FirstRunController.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

struct World : ControllerWorld {
    explicit World(bool isDone) {
        fake.settings->values.insert(u"onboardingDone"_s, isDone);
        launch();
        icons.emplace(controller->workspace());
        capabilities.emplace(*controller);
    }
    std::unique_ptr<FirstRunController> open() {
        auto firstRun = std::make_unique<FirstRunController>(*controller, *icons, *capabilities);
        firstRun->begin();
        return firstRun;
    }
    QStringList modeNames() const {
        QStringList names;
        for (const Mode& mode : controller->engine().modes())
            names.append(mode.name);
        return names;
    }
    std::optional<AppIcons> icons;
    std::optional<Capabilities> capabilities;
};

} // namespace

class FirstRunTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isTakenUpWhereItWasLeft() {
        World world(false);
        {
            const auto firstRun = world.open();
            QCOMPARE(firstRun->chosen(), (QStringList{u"writing"_s, u"building"_s, u"social"_s}));
            firstRun->toggle(u"social"_s);
            firstRun->toggle(u"design"_s);
            firstRun->setPage(2);
            firstRun->setPage(4); // there is no such page
        }
        const auto firstRun = world.open();
        QCOMPARE(firstRun->page(), 2);
        QCOMPARE(firstRun->chosen(), (QStringList{u"writing"_s, u"building"_s, u"design"_s}));
        QVERIFY(!world.controller->isOnboardingDone());

        const QSignalSpy closed(firstRun.get(), &FirstRunController::closed);
        firstRun->finish();
        QVERIFY(world.controller->isOnboardingDone());
        QCOMPARE(closed.count(), 1);
        QCOMPARE(world.modeNames(), (QStringList{u"Writing"_s, u"Building"_s, u"Design"_s}));
        QCOMPARE(world.open()->page(), 0); // once more, from the beginning
    }

    void aRepeatOnlyAdds() {
        World world(true);
        ModeEngine& engine = world.controller->engine();
        Mode mine = engine.modes().first();
        mine.name = u"My own words"_s;
        engine.update(mine);
        engine.deleteMode(u"social"_s);
        const auto firstRun = world.open();
        firstRun->toggle(mine.id); // it is there, and stays
        firstRun->toggle(u"design"_s);
        firstRun->finish();
        QCOMPARE(world.modeNames(), (QStringList{u"My own words"_s, u"Building"_s, u"Design"_s}));
        QCOMPARE(engine.current().id, mine.id);
    }
};

QTEST_MAIN(FirstRunTest)
#include "tst_FirstRun.moc"
