#include "App/ControllerWorld.h"
#include "UI/Dock/NoticeController.h"
#include "UI/Images/AppIcons.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct World : ControllerWorld {
    /// What is told, the one on the card first.
    QString kinds() const {
        QStringList list;
        for (const QVariant& each : notices.all())
            list.append(each.value<Notice>().kindName());
        return list.join(u' ');
    }
    /// The user works in "building", and comes back to "writing" a while later.
    void comeBack() {
        commit(u"building"_s);
        fake.clock->advance(3min);
        commit(u"writing"_s);
    }
    /// The user strays into the application of another mode.
    void stray() {
        front(run(chat));
        fake.clock->advance(20s);
    }

    AppController& app = launch();
    AppIcons icons{app.workspace()};
    NoticeController notices{app, icons};
};

} // namespace

/// What is told beside the dock, one thing at a time.
class NoticesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMostFleetingComesFirst() {
        World world;
        world.run(World::notes);
        world.fake.clock->advance(3min);
        world.comeBack();
        QCOMPARE(world.kinds(), u"offer"_s);
        QCOMPARE(world.notices.current().detail, u"1 application(s)"_s);
        world.stray();
        QCOMPARE(world.kinds(), u"suggestion offer"_s);
        QCOMPARE(world.notices.current().text, u"Switch to Social?"_s);
        QVERIFY(!world.notices.current().icon.isEmpty());
        world.app.undo().show(u"Removed"_s, Tint::blue, [] {});
        QCOMPARE(world.kinds(), u"undo suggestion offer"_s);
        world.notices.accept(u"undo"_s);
        world.notices.refuse(u"suggestion"_s);
        QCOMPARE(world.kinds(), u"offer"_s);
        world.notices.accept(u"suggestion"_s); // it is gone
        QVERIFY(!world.app.engine().pending());
        world.notices.refuse(u"offer"_s);
        QCOMPARE(world.notices.current(), Notice());
    }

    void acceptsWhatIsProposed() {
        World world;
        world.stray();
        QCOMPARE(world.kinds(), u"suggestion"_s);
        world.notices.accept(u"suggestion"_s);
        QCOMPARE(world.app.engine().current().id, u"social"_s);
        QCOMPARE(world.kinds(), QString());
    }

    void aPointerKeepsWhatItRestsOn() {
        World world;
        world.stray();
        world.notices.setHovered(u"suggestion"_s, true);
        world.fake.clock->advance(5min);
        QCOMPARE(world.kinds(), u"suggestion"_s);
        world.notices.setHovered(u"suggestion"_s, false);
        world.fake.clock->advance(5min);
        QCOMPARE(world.kinds(), QString());
    }

    void nothingTakesThePlaceUnderThePointer() {
        World world;
        world.run(World::notes);
        world.fake.clock->advance(3min);
        world.comeBack();
        world.notices.setHovered(u"offer"_s, true);
        world.stray();
        QCOMPARE(world.kinds(), u"offer suggestion"_s); // its button stays what it is
        world.notices.setHovered(u"offer"_s, false);
        QCOMPARE(world.kinds(), u"suggestion offer"_s);
        world.fake.clock->advance(5min);
        QCOMPARE(world.kinds(), QString());
    }
};

QTEST_GUILESS_MAIN(NoticesTest)
#include "tst_Notices.moc"
