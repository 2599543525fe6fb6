#include "App/Capabilities.h"
#include "ControllerWorld.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using State = Capability::State;

namespace {

State stateOf(const QList<Capability>& all, const QString& id) {
    const auto found = std::ranges::find(all, id, &Capability::id);
    return found == all.end() ? State::unknown : found->state;
}

} // namespace

class CapabilitiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsMissingIsNotWhatCannotBe() {
        using Keyring = CapabilityFacts::Keyring;
        CapabilityFacts facts{.readsTitles = true, .keyring = Keyring::ready, .canHoldPointer = true};
        for (const char* id : {"titles", "notifications", "model", "keyring", "hotKeys", "pointer"})
            QVERIFY2(stateOf(capabilities(facts), QString::fromLatin1(id)) == State::works, id);
        QVERIFY(stateOf(capabilities(facts), u"browser"_s) == State::absent);

        facts = {.messagesProblem = u"no bus"_s,
                 .keyring = Keyring::locked,
                 .canHoldPointer = true,
                 .isPointerHeld = false,
                 .takenHotKeys = {u"⌥1"_s}};
        const auto all = capabilities(facts);
        for (const char* id : {"titles", "notifications", "hotKeys", "pointer"})
            QVERIFY2(stateOf(all, QString::fromLatin1(id)) == State::missing, id);
        QVERIFY(stateOf(all, u"keyring"_s) == State::locked);
        QVERIFY(std::ranges::find(all, u"hotKeys"_s, &Capability::id)->reason.contains(u"⌥1"));
        using Calendar = CalendarStore;
        QVERIFY(stateOf(all, u"calendar"_s) == State::unknown); // nobody has looked yet
        facts.remedies = {{u"calendar"_s, {.page = {u"a program that shares nothing"_s}}}};
        facts.calendarAccess = Calendar::Access::missing;
        QVERIFY(stateOf(capabilities(facts), u"calendar"_s) == State::absent);
        facts.calendarAccess = Calendar::Access::denied;
        QVERIFY(stateOf(capabilities(facts), u"calendar"_s) == State::missing);
        facts.calendar = Calendar::Source::folders;
        QVERIFY(stateOf(capabilities(facts), u"calendar"_s) == State::works);
        facts.canHoldPointer = false;
        QVERIFY(stateOf(capabilities(facts), u"pointer"_s) == State::absent);
    }

    void browsersAreThoseThatWereUsed() {
        ControllerWorld world;
        const auto home = [&](const QString& folder, const QString& name, const QString& bundleID) {
            return BrowserHome{.data = world.fake.home.filePath(folder), .name = name, .bundleID = bundleID};
        };
        // One of them keeps its profiles in either of two folders.
        world.fake.platform.browsers = {home(u"one"_s, u"One"_s, u"org.one"_s),
                                        home(u"one-too"_s, u"One"_s, u"org.one"_s),
                                        home(u"other"_s, u"Other"_s, u"org.other"_s)};
        QDir(world.fake.home.path()).mkpath(u"one"_s);
        QDir(world.fake.home.path()).mkpath(u"one-too"_s);
        AppController& controller = world.launch();
        Capabilities known(controller);
        known.refresh();
        const auto browsers = [&] {
            QStringList ids;
            for (const Capability& capability : known.all()) {
                if (capability.browser)
                    ids.append(capability.id);
            }
            return ids;
        };
        QTRY_COMPARE(browsers(), QStringList{u"browser One"_s});
        QVERIFY(stateOf(known.all(), u"browser One"_s) == State::unknown);

        // A browser that is started for the first time makes its folder then.
        QDir(world.fake.home.path()).mkpath(u"other"_s);
        world.run(u"org.other"_s);
        QTRY_COMPARE(browsers(), (QStringList{u"browser One"_s, u"browser Other"_s}));
        QVERIFY(stateOf(known.all(), u"browser Other"_s) == State::missing);
    }
};

QTEST_GUILESS_MAIN(CapabilitiesTest)
#include "tst_Capabilities.moc"
