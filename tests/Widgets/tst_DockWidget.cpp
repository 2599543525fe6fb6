#include "Modes/ModeCatalog.h"
#include "Widgets/DockWidget.h"

#include <QFile>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class DockWidgetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysEverythingOfEveryKind() {
        QCOMPARE(dockWidgetKinds().size(), QMetaEnum::fromType<DockWidget>().keyCount());
        QSet<QString> titles;
        int position = 0;
        for (const DockWidgetKind& each : dockWidgetKinds()) {
            QCOMPARE(static_cast<int>(each.widget), position++); // `kind` counts on it
            titles.insert(each.title());
            QVERIFY2(!each.sizes.isEmpty() && !each.detail().isEmpty(), qPrintable(each.id()));
            const QString outlined = QString(each.symbol).remove(u".fill"_s);
            const QString picture = QStringLiteral(TEST_DATA "/../../src/UI/symbols/") + outlined + u".svg"_s;
            QVERIFY2(QFile::exists(picture), qPrintable(picture));
        }
        QCOMPARE(titles.size(), dockWidgetKinds().size());
        QCOMPARE(kind(DockWidget::revenue).shortTitle(), u"Revenue"_s);
        QCOMPARE(kind(DockWidget::clock).shortTitle(), u"Clock"_s);
    }

    void knowsTheWidgetsOfTheTemplates() {
        for (const Mode& mode : ModeCatalog::with({}).templates) {
            QVERIFY2(!mode.widgets.isEmpty(), qPrintable(mode.id));
            QCOMPARE(widgetItems(mode.widgets).size(), mode.widgets.size());
        }
    }

    void leavesOutWhatNobodyKnows() {
        const auto items = widgetItems({u"sky"_s, u"Timer"_s, u"lava"_s, {}, u"note"_s, u"sky"_s});
        const QList<WidgetItem> expected{{DockWidget::sky, kind(DockWidget::sky).sizes.first()},
                                         {DockWidget::note, kind(DockWidget::note).sizes.first()}};
        QCOMPARE(items, expected);
    }
};

QTEST_GUILESS_MAIN(DockWidgetTest)
#include "tst_DockWidget.moc"
