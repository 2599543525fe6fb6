#include "App/ControllerWorld.h"
#include "UI/Images/AppIcons.h"
#include "UI/Setup/PermissionsModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

class FakeRemedies final : public Remedies {
public:
    bool hasPage(const QString&) const override { return hasPages; }
    void openPage(const QString& thing) override { opened.append(thing); }
    QString command(const QString& thing) const override { return u"get "_s + thing; }

    bool hasPages = false;
    QStringList opened;
};

} // namespace

class PermissionsModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyRowLeadsOn_data() {
        QTest::addColumn<bool>("hasPages");
        QTest::addColumn<bool>("hasBrowser");
        QTest::newRow("commands") << false << false;
        QTest::newRow("pages of the desktop") << true << false;
        QTest::newRow("a browser") << false << true;
    }
    void everyRowLeadsOn() {
        QFETCH(const bool, hasPages);
        QFETCH(const bool, hasBrowser);
        ControllerWorld world;
        auto remedies = std::make_unique<FakeRemedies>();
        FakeRemedies& asked = *remedies;
        asked.hasPages = hasPages;
        world.fake.platform.remedies = std::move(remedies);
        if (hasBrowser) {
            world.fake.platform.browsers = {{.data = world.fake.home.path(),
                                             .family = BrowserHome::Family::mozilla,
                                             .name = u"Browser"_s,
                                             .bundleID = u"org.browser"_s}};
            world.fake.applications->locations.insert(u"org.browser"_s, u"browser"_s);
        }
        AppController& controller = world.launch();
        AppIcons icons(controller.workspace());
        Capabilities capabilities(controller);
        PermissionsModel model(controller, icons, capabilities, PermissionsModel::Shows::all);
        model.refresh();
        const auto role = [&](int row, const QByteArray& name) {
            return model.data(model.index(row), model.roleNames().key(name));
        };
        QTRY_VERIFY(!hasBrowser ||
                    model.match(model.index(0), model.roleNames().key("rowID"), u"browser Browser"_s).size());

        for (int row = 0; row < model.count(); ++row) {
            const QString id = role(row, "rowID").toString();
            const QVariantList actions = role(row, "actions").toList();
            QVERIFY2(!actions.isEmpty(), qPrintable(id));
            for (const QVariant& each : actions) {
                const QString action = each.toMap()[u"id"_s].toString();
                QGuiApplication::clipboard()->clear();
                world.shown.clear();
                world.takeRequests();
                asked.opened.clear();
                model.act(id, action);
                const bool isDone = !QGuiApplication::clipboard()->text().isEmpty() || !world.shown.isEmpty() ||
                                    !world.takeRequests().isEmpty() || !asked.opened.isEmpty();
                QVERIFY2(isDone, qPrintable(id + u": "_s + action));
            }
        }
    }
};

QTEST_MAIN(PermissionsModelTest)
#include "tst_PermissionsModel.moc"
