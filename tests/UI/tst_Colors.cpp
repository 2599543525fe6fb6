#include "App/DockAppearance.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtTest>

#include <memory>

Q_IMPORT_QML_PLUGIN(Fendrel_StylePlugin)

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

/// What is painted with a translucent color over another.
QColor over(const QColor& color, const QColor& base) {
    const auto mix = [alpha = color.alphaF()](float upper, float lower) { return alpha * upper + (1 - alpha) * lower; };
    return QColor::fromRgbF(mix(color.redF(), base.redF()), mix(color.greenF(), base.greenF()),
                            mix(color.blueF(), base.blueF()));
}

} // namespace

/// Whatever the views write, a person with weak eyes can read.
class ColorsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_engine.addImportPath(u"qrc:/qml"_s); }

    void windowsCanBeRead() {
        for (const bool isDark : {false, true}) {
            for (const bool isStrong : {false, true}) {
                const auto colors = make(isDark, false, isStrong);
                const auto is = [&](const char* name) { return colors->property(name).value<QColor>(); };
                const auto check = [&](const char* front, const QColor& back, double least) {
                    const double contrast = contrastRatio(is(front), back);
                    QVERIFY2(contrast >= least, qPrintable(u"%1 on %2, %3, dark %4, strong %5"_s.arg(
                                                    QLatin1StringView(front), back.name(), QString::number(contrast),
                                                    QString::number(isDark), QString::number(isStrong))));
                };
                for (const char* back : {"window", "card", "field"}) {
                    for (const char* text : {"text", "secondaryText"}) {
                        check(text, is(back), readableContrast);
                        check(text, over(is("hover"), is(back)), readableContrast);
                    }
                    for (const char* text : {"grave", "warning", "well"})
                        check(text, is(back), readableContrast);
                    check("accent", is(back), 3);
                    check("text", over(is("pressed"), is(back)), readableContrast);
                }
                QVERIFY(contrastRatio(Qt::white, is("accent")) >= readableContrast);
            }
        }
    }

    void tintsCanBeWrittenOn() {
        const auto colors = make(false, false, false);
        for (int hue = 0; hue < 360; hue += 15) {
            for (const int value : {40, 120, 160, 200, 240, 255}) {
                const QColor tint = QColor::fromHsv(hue, 180, value);
                colors->setProperty("tint", tint);
                const auto text = colors->property("onIt").value<QColor>();
                QVERIFY2(contrastRatio(text, tint) >= readableContrast, qPrintable(tint.name()));
            }
        }
    }

    void docksCanBeRead() {
        for (const auto& [name, look] : DockAppearance::presets()) {
            const auto colors = make(look.isDark, look.opacity < 0.85, false);
            QCOMPARE(colors->property("text").value<QColor>(), look.text());
            QVERIFY2(look.contrast(colors->property("secondaryText").value<QColor>()) >= readableContrast,
                     qPrintable(name));
        }
    }

private:
    std::unique_ptr<QObject> make(bool isDark, bool isClear, bool isStrong) {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick; import Fendrel.Style;"
                          "Colors { property bool strong; onStrongChanged: Theme.increasesContrast = strong;"
                          " property color tint; readonly property color onIt: onTint(tint) }",
                          {});
        std::unique_ptr<QObject> colors(
            component.createWithInitialProperties({{u"isDark"_s, isDark}, {u"isClear"_s, isClear}}));
        if (!colors)
            qFatal("%s", qPrintable(component.errorString()));
        colors->setProperty("strong", !isStrong);
        colors->setProperty("strong", isStrong);
        return colors;
    }

    QQmlEngine m_engine;
};

QTEST_MAIN(ColorsTest)
#include "tst_Colors.moc"
