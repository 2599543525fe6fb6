#include "App/ControllerWorld.h"
#include "Table.h"
#include "UI/Interface.h"
#include "UI/Settings/SettingsCatalog.h"
#include "UI/Settings/SettingsSearch.h"
#include "fakes/FakeHttp.h"
#include "fakes/FakeSecretStore.h"

#include <QGuiApplication>
#include <QMetaProperty>
#include <QQuickItem>
#include <QQuickView>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

/// The settings window over a platform of fakes, as the interface opens it.
struct Window {
    explicit Window(const QString& pane, double textScale = 1) {
        world.fake.look->scale = textScale;
        auto madeHttp = std::make_unique<FakeHttp>();
        http = madeHttp.get();
        world.fake.platform.http = std::move(madeHttp);
        auto madeStore = std::make_unique<FakeSecretStore>();
        store = madeStore.get();
        world.fake.platform.secrets = std::move(madeStore);
        controller = &world.controller.emplace(world.fake.platform);
        interface.emplace(*controller);
        controller->onAlert = [this](const Alert& alert) { lastAlert = alert; };
        controller->showSettings(pane);
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            if (auto* candidate = qobject_cast<QQuickView*>(window); candidate && candidate->isVisible())
                view = candidate;
        }
        isShown = view && QTest::qWaitForWindowExposed(view);
    }

    /// The first item that is shown and has the property with this value.
    QQuickItem* find(const char* property, const QVariant& value, QQuickItem* from = nullptr) const {
        QQuickItem* item = from ? from : view->rootObject();
        if (!item->isVisible())
            return nullptr;
        const QVariant found = item->property(property);
        if (found.isValid() && (!value.isValid() || found == value))
            return item;
        for (QQuickItem* child : item->childItems()) {
            if (QQuickItem* inside = find(property, value, child))
                return inside;
        }
        return nullptr;
    }
    QQuickItem* row(const QString& setting) const { return find("setting", setting); }
    bool isPane(const QString& pane) const {
        return find("text", settingsCatalog::entry(pane).label) && find("settings", {}) &&
               view->rootObject()->property("settings").value<QObject*>()->property("pane") == pane;
    }
    void click(QQuickItem* item) const {
        const QPointF center(item->width() / 2, item->height() / 2);
        QTest::mouseClick(view, Qt::LeftButton, {}, item->mapToScene(center).toPoint());
    }
    void type(const QByteArray& text) const {
        for (const char letter : text)
            QTest::keyClick(view, letter);
    }
    bool isInside(QQuickItem* item, const QQuickItem* ancestor) const {
        return item == ancestor || (item && isInside(item->parentItem(), ancestor));
    }
    /// Texts that do not fit where they are.
    QStringList cutTexts(QQuickItem* from) const {
        QStringList cut;
        if (!from->isVisible())
            return cut;
        const QRectF place = from->mapRectToScene(from->boundingRect());
        const bool isOutside = place.left() < 0 || place.right() > view->width() + 0.5;
        if (from->property("truncated").toBool() || (from->property("wrapMode").isValid() && isOutside))
            cut.append(from->property("text").toString());
        for (QQuickItem* child : from->childItems())
            cut += cutTexts(child);
        return cut;
    }

    ControllerWorld world;
    FakeHttp* http{};
    FakeSecretStore* store{};
    AppController* controller{};
    std::optional<Interface> interface;
    Alert lastAlert;
    QQuickView* view{};
    bool isShown{};
};

} // namespace

class SettingsViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensEveryPane_data() {
        const Table<QString, double, bool> table("pane", "textScale", "isMirrored");
        for (const QString& pane : AppController::settingsPanes()) {
            table(pane.toLatin1(), pane, 1.0, false);
            table(pane.toLatin1() + ", large text, from right to left", pane, 2.0, true);
        }
    }

    void opensEveryPane() {
        QFETCH(const QString, pane);
        QFETCH(const double, textScale);
        QFETCH(const bool, isMirrored);
        QTest::failOnWarning(QRegularExpression(u"qrc:|QML|qml"_s));
        QGuiApplication::setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
        const Window window(pane, textScale);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QVERIFY(window.isShown);
        QVERIFY(window.isPane(pane));
        QTRY_COMPARE(window.cutTexts(window.view->rootObject()).join(u'|'), QString());
    }

    void everySettingIsThere() {
        const QMetaObject& meta = Preferences::staticMetaObject;
        for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
            const QString name = QString::fromLatin1(meta.property(index).name());
            if (meta.property(index).isWritable() && name != u"appearance")
                QVERIFY2(!settingsCatalog::entry(name).label.isEmpty(), qPrintable(name));
        }
        for (const QString& pane : {u"general"_s, u"dock"_s, u"widgets"_s}) {
            const Window window(pane);
            for (const QString& setting : settingsCatalog::settingsOf(pane))
                QVERIFY2(setting == pane || window.row(setting), qPrintable(setting));
        }
    }

    void controlsChangeThePreferences() {
        const Window window(u"dock"_s);
        QVERIFY(window.isShown);
        Preferences& preferences = window.controller->preferences();
        QQuickItem* toggle = window.find("isOn", {}, window.row(u"autoHide"_s));
        QVERIFY(toggle);
        window.click(toggle);
        QVERIFY(preferences.autoHide());
        QVERIFY(window.world.fake.settings->read<bool>(u"autoHide"_s).value_or(false));
        QVERIFY(toggle->property("isOn").toBool());
        preferences.setAutoHide(false); // from elsewhere
        QVERIFY(!toggle->property("isOn").toBool());

        QQuickItem* choice = window.find("current", {}, window.row(u"dockPosition"_s));
        QVERIFY(choice);
        choice->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window.view, Qt::Key_Right);
        QCOMPARE(preferences.dockPosition(), DockPosition::left);
        QTest::keyClick(window.view, Qt::Key_Left);
        QTest::keyClick(window.view, Qt::Key_Left);
        QCOMPARE(preferences.dockPosition(), DockPosition::bottom);
    }

    void looksAreEditedOnTheDock() {
        Window window(u"appearance"_s);
        QVERIFY(window.isShown);
        Preferences& preferences = window.controller->preferences();
        preferences.setMatchSystem(true);
        QVERIFY(!preferences.showsDark());
        QQuickItem* choice = window.find("current", 0, window.row(u"darkAppearance"_s));
        QVERIFY(choice);
        choice->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window.view, Qt::Key_Right);
        QCOMPARE(preferences.appearance(), preferences.darkAppearance());

        QQuickItem* slider = window.find("field", u"cornerRadius"_s);
        QVERIFY(slider);
        slider->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyPress(window.view, Qt::Key_Left);
        QCOMPARE(preferences.appearance().cornerRadius, 17);
        QTest::keyRelease(window.view, Qt::Key_Left);
        QTest::keyClick(window.view, Qt::Key_PageDown);
        QTest::keyClick(window.view, Qt::Key_End);
        QTest::keyClick(window.view, Qt::Key_Right);
        QCOMPARE(preferences.darkAppearance().cornerRadius, 40);
        QCOMPARE(window.find("field", u"cornerRadius"_s)->property("value"), 40);
        QCOMPARE(preferences.lightAppearance(), DockAppearance());
        const auto stored = window.world.fake.settings->read<QByteArray>(u"dockAppearanceDark"_s);
        QCOMPARE(dockAppearanceFromJson(stored.value_or(QByteArray())), preferences.darkAppearance());
        QVERIFY(!window.find("field", u"shadow"_s)->isEnabled()); // without a compositor it could not be seen

        window.controller->showSettings(u"dock"_s);
        QTRY_VERIFY(!preferences.editingDark());
        window.controller->showSettings(u"appearance"_s);
        QVERIFY(preferences.editingDark());
        window.view->close();
        QTRY_VERIFY(!preferences.editingDark());
    }

    void typedTextIsTakenOver() {
        const Window window(u"general"_s);
        QVERIFY(window.isShown);
        QQuickItem* field = window.find("isClearable", {}, window.row(u"breakThrough"_s));
        QVERIFY(field);
        field->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window.view, Qt::Key_End);
        window.type(", fire ");
        QTest::keyClick(window.view, Qt::Key_Return);
        QCOMPARE(window.controller->preferences().breakThrough(), u"urgent, asap, fire"_s);
        QCOMPARE(field->property("text").toString(), u"urgent, asap, fire"_s);
    }

    void theCityIsAskedForOnceItIsTyped() {
        const Window window(u"widgets"_s);
        QVERIFY(window.isShown);
        const QQuickItem* row = window.row(u"weatherPlace"_s);
        QQuickItem* field = window.find("isClearable", {}, window.row(u"weatherPlace"_s));
        QVERIFY(row && field);
        field->forceActiveFocus(Qt::TabFocusReason);
        const auto asked = [&window](const QString& name) {
            return std::ranges::count_if(window.http->requests,
                                         [&](const auto& request) { return request.url.toString().contains(name); });
        };
        window.type("Atlantis");
        QCOMPARE(asked(u"Atl"_s), 0);
        QTest::keyClick(window.view, Qt::Key_Return);
        QCOMPARE(asked(u"Atlantis"_s), 1);
        QVERIFY(window.http->answerNext(FakeHttp::answer("{}"), u"Atlantis"_s));
        QCOMPARE(row->property("problem").toString(), u"No city called “Atlantis” was found."_s);
        QCOMPARE(field->property("text").toString(), u"Atlantis"_s); // to be corrected
        field->setProperty("text", u"Oslo"_s);
        QTest::keyClick(window.view, Qt::Key_Return);
        QVERIFY(window.http->answerNext(FakeHttp::error(), u"Oslo"_s));
        QCOMPARE(row->property("problem").toString(), u"Couldn't reach Open-Meteo"_s);
        QTest::keyClick(window.view, Qt::Key_Return);
        QVERIFY(window.http->answerNext(
            FakeHttp::answer(R"({"results":[{"name":"Oslo","latitude":60,"longitude":11}]})"), u"Oslo"_s));
        QCOMPARE(row->property("problem").toString(), QString());
        QCOMPARE(window.controller->widgets().weather().place()->name, u"Oslo"_s);
        QTest::keyClick(window.view, Qt::Key_Tab);
        QCOMPARE(asked(u"Oslo"_s), 2);

        field = window.find("isClearable", {}, window.row(u"tickerSymbols"_s));
        field->forceActiveFocus(Qt::TabFocusReason);
        window.type("aapl;^gspc  AAPL, btc-usd");
        QTest::keyClick(window.view, Qt::Key_Tab);
        QCOMPARE(field->property("text").toString(), u"AAPL, ^GSPC, BTC-USD"_s);
        window.controller->widgets().reset(settingsCatalog::settingsOf(u"widgets"_s));
        QVERIFY(!window.world.fake.settings->values.contains(Ticker::settingKey));
        QCOMPARE(field->property("text").toString(), QString());
    }

    void onlyAFolderIsTakenForCalendars() {
        const Window window(u"widgets"_s);
        QVERIFY(window.isShown);
        const QQuickItem* row = window.row(u"calendarFolder"_s);
        QQuickItem* field = window.find("isClearable", {}, window.row(u"calendarFolder"_s));
        QVERIFY(row && field);
        const auto& stored = window.world.fake.settings->values;
        const auto enter = [&](const QString& text) {
            field->forceActiveFocus(Qt::TabFocusReason);
            field->setProperty("text", QString());
            window.type(text.toLatin1());
            QTest::keyClick(window.view, Qt::Key_Return);
        };
        enter(u"/no/such/folder"_s);
        QCOMPARE(row->property("problem").toString(), u"There is no folder /no/such/folder."_s);
        QCOMPARE(field->property("text").toString(), u"/no/such/folder"_s); // to be corrected
        QVERIFY(!stored.contains(CalendarFeed::settingKey));
        enter(u"/tmp"_s);
        QCOMPARE(row->property("problem").toString(), QString());
        QCOMPARE(window.world.fake.settings->read<QString>(CalendarFeed::settingKey), u"/tmp"_s);
        enter(u" "_s);
        QVERIFY(!stored.contains(CalendarFeed::settingKey));
    }

    void whatWasOpenIsForgotten() {
        const Window window(u"general"_s);
        QVERIFY(window.isShown);
        ModeContext& context = window.controller->context();
        const ModeEngine& engine = window.controller->engine();
        const QString left = engine.current().name;
        context.saw({.url = u"https://example.org/"_s, .title = u"Example"_s});
        window.world.fake.clock->advance(std::chrono::minutes(3));
        context.modeChanged(engine.modes().last());
        QTRY_VERIFY(window.find("label", left));
        QQuickItem* forget = window.find("text", u"Forget"_s, window.find("label", left));
        QVERIFY(forget);
        QVERIFY(QMetaObject::invokeMethod(forget, "clicked"));
        QVERIFY(context.snapshots().isEmpty());
        QTRY_VERIFY(!window.find("label", left));
    }

    void anAccountIsTested() {
        const Window window(u"accounts"_s);
        QVERIFY(window.isShown);
        const auto news = [&window](const QString& text) { return window.find("text", text) != nullptr; };
        window.store->answer();
        auto* accounts = window.view->rootObject()->property("settings").value<SettingsController*>()->accounts();
        accounts->save(0, u"a key"_s); // GitHub's
        window.store->answer();
        QVERIFY(news(u"Asking GitHub…"_s));
        QVERIFY(window.http->answerNext(FakeHttp::answer(R"({"data":{"search":{}}})"), u"github"_s));
        QVERIFY(news(u"Connected, and GitHub took the key"_s));
        QQuickItem* button = window.find("text", u"Test"_s);
        QVERIFY(button);
        window.click(button);
        window.click(button); // one at a time
        window.store->answer();
        QVERIFY(window.http->answerNext(FakeHttp::answer({}, 401), u"github"_s));
        QVERIFY(!window.http->answerNext(FakeHttp::answer({}, 401), u"github"_s));
        QVERIFY(news(u"GitHub didn't accept the token"_s));
        window.controller->accounts().remove(WidgetAccounts::Service::github);
        window.store->answer();
        QVERIFY(!news(u"GitHub didn't accept the token"_s));
    }

    void searchLeadsToTheSetting() {
        const Window window(u"about"_s);
        QVERIFY(window.isShown);
        QTest::keyClick(window.view, Qt::Key_F, Qt::ControlModifier);
        window.type("nosuchthing");
        QVERIFY(!window.find("paneName", {}));
        for (int count = 0; count < 11; ++count)
            QTest::keyClick(window.view, Qt::Key_Backspace);
        window.type("CLICK hide");
        QTest::keyClick(window.view, Qt::Key_Return);
        QVERIFY(window.isPane(u"dock"_s));
        const QQuickItem* row = window.row(u"clickToHide"_s);
        QVERIFY(row);
        QTRY_VERIFY(window.isInside(window.view->activeFocusItem(), row));
        const QRectF place = row->mapRectToScene(row->boundingRect());
        QVERIFY(place.top() >= 0 && place.bottom() <= window.view->height());
    }

    void opensElsewhereWhateverItShows() {
        const Window window(u"general"_s);
        QVERIFY(window.isShown);
        QQuickItem* shower = window.find("detail", u"0"_s, window.row(u"learnedAnswers"_s));
        QVERIFY(shower);
        shower->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window.view, Qt::Key_Space);
        QQuickItem* search = window.find("placeholder", u"Search"_s);
        QVERIFY(search && !search->isEnabled());
        QTest::keyClick(window.view, Qt::Key_Escape);
        QVERIFY(shower->hasActiveFocus() && search->isEnabled());

        QTest::keyClick(window.view, Qt::Key_Space);
        QVERIFY(!search->isEnabled());
        window.controller->showSettings(u"dock"_s);
        QVERIFY(window.isPane(u"dock"_s) && search->isEnabled());

        QTest::keyClick(window.view, Qt::Key_F, Qt::ControlModifier);
        window.type("glow");
        QVERIFY(!window.row(u"autoHide"_s));
        window.controller->showSettings(u"dock"_s);
        QVERIFY(window.row(u"autoHide"_s));
        window.controller->onShowSettings(u"modelServer"_s);
        QTRY_VERIFY(window.row(u"modelServer"_s) &&
                    window.isInside(window.view->activeFocusItem(), window.row(u"modelServer"_s)));

        const QPointer<QWindow> view(window.view);
        QTest::keyClick(window.view, Qt::Key_Escape);
        QTRY_VERIFY(!view);
    }

    void searchFindsWhatIsMeant_data() {
        const Table<QString, QString, QString> table("query", "found", "marked");
        table("the beginning of a word", u"tid"_s, u"a"_s, u"<b>Tidy</b> &amp; Café"_s);
        table("the middle of one", u"idy"_s, QString(), u"Tidy &amp; Café"_s);
        table("case and accents", u"CAFE"_s, u"a"_s, u"Tidy &amp; <b>Café</b>"_s);
        table("the very label before labels before help", u"dock"_s, u"c b a"_s, u"Tidy &amp; Café"_s);
        table("other words", u"broom"_s, u"a"_s, u"Tidy &amp; Café"_s);
        table("each of several words", u"tidy broom"_s, u"a"_s, u"<b>Tidy</b> &amp; Café"_s);
        table("not only one of them", u"tidy glow"_s, QString(), u"<b>Tidy</b> &amp; Café"_s);
        table("no words", u" & "_s, QString(), u"Tidy &amp; Café"_s);
    }

    void searchFindsWhatIsMeant() {
        QFETCH(const QString, query);
        QFETCH(const QString, found);
        const QList<SettingEntry> entries{
            {.setting = u"a"_s, .label = u"Tidy & Café"_s, .help = u"Not the dock."_s, .words = u"broom"_s},
            {.setting = u"b"_s, .label = u"Glowing dock"_s},
            {.setting = u"c"_s, .label = u"Dock"_s}};
        QStringList names;
        for (const SettingEntry& entry : findSettings(entries, query))
            names.append(entry.setting);
        QCOMPARE(names.join(u' '), found);
        QTEST(markedText(entries.first().label, query), "marked");
    }

    void resetBringsDefaultsBack() {
        Window window(u"dock"_s);
        Preferences& preferences = window.controller->preferences();
        preferences.setMagnify(false);
        preferences.setDockSize(DockSize::large);
        preferences.setMatchSystem(true);
        preferences.setFocusShortcut({});
        QQuickItem* button = window.find("pane", u"dock"_s);
        QVERIFY(button);
        button = window.find("symbol", u"arrow.uturn.backward"_s, button);
        QVERIFY(button);
        button->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window.view, Qt::Key_Return);
        QCOMPARE(window.lastAlert.buttons.size(), 2);
        window.lastAlert.answered(1);
        QCOMPARE(preferences.dockSize(), DockSize::large);
        window.lastAlert.answered(0);
        QCOMPARE(preferences.dockSize(), DockSize::medium);
        QVERIFY(preferences.magnify());
        const auto& stored = window.world.fake.settings->values;
        QVERIFY(!stored.contains(u"magnify"_s) && !stored.contains(u"dockSize"_s));
        QVERIFY(preferences.matchSystem() && !preferences.focusShortcut()); // of other panes
    }
};

QTEST_MAIN(SettingsViewTest)
#include "tst_SettingsView.moc"
