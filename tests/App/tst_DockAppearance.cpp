#include "App/DockAppearance.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class DockAppearanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsItWasStored() {
        for (const auto& preset : DockAppearance::presets())
            QCOMPARE(dockAppearanceFromJson(toJson(preset.look)), preset.look);
        const DockAppearance odd{u"#010203"_s, true, 0.123456789, 1, 2, 0.8, 1.1, 0.3, 0.4, false};
        QCOMPARE(dockAppearanceFromJson(toJson(odd)), odd);
    }

    void readsWhatItCan() {
        const auto read = [](const char* json) { return dockAppearanceFromJson(json); };
        QCOMPARE(read("{}"), DockAppearance());
        QCOMPARE(read(R"({"glow":{"colour":"red"},"spacing":3})"), DockAppearance{.spacing = 3});
        QCOMPARE(read(R"({"opacity":-1,"cornerRadius":1e300,"iconScale":0,"magnification":9})"),
                 (DockAppearance{.opacity = 0, .cornerRadius = 40, .iconScale = 0.75, .magnification = 2}));
        QCOMPARE(read("{\"background\":\"#ABCDEF\"}"), DockAppearance{.background = u"#abcdef"_s});
        for (const char* unreadable : {R"({"background":"sky"})", R"({"background":1})", R"({"opacity":"1"})",
                                       R"({"opacity":null})", "[{}]", "{", ""})
            QVERIFY2(!read(unreadable), unreadable);
    }

    void changesOneNumberWithinItsRange() {
        DockAppearance look;
        QVERIFY(look.set("spacing", 90));
        QCOMPARE(look, DockAppearance{.spacing = 24});
        QVERIFY(look.set("spacing", -1));
        QCOMPARE(look, DockAppearance{.spacing = 0});
        for (const char* unknown : {"", "background", "blur", "spacings"})
            QVERIFY2(!look.set(unknown, 1), unknown);
        QVERIFY(!look.set("opacity", qQNaN()));
        QCOMPARE(look, DockAppearance{.spacing = 0});
    }

    void measuresContrast() {
        QCOMPARE(contrastRatio(Qt::white, Qt::black), 21.0);
        QCOMPARE(contrastRatio(Qt::black, Qt::white), 21.0);
        QCOMPARE(qRound(100 * contrastRatio(u"#767676"_s, Qt::white)), 454);
        // Half of white is gray over black, and what is as gray vanishes somewhere in between.
        const DockAppearance half{.background = Qt::white, .opacity = 128.0 / 255};
        QCOMPARE(qRound(100 * half.contrast(Qt::black)), qRound(100 * contrastRatio(Qt::black, u"#808080"_s)));
        QCOMPARE(half.contrast(u"#a0a0a0"_s), 1.0);
        for (const auto& [color, light] : {std::pair("#ffffff", false), {"#808080", false}, {"#1f6fe5", true}})
            QCOMPARE(wantsLightText(QColor(QLatin1StringView(color))), light);
    }

    void builtInLooksCanBeRead() {
        for (const auto& [name, look] : DockAppearance::presets()) {
            QVERIFY2(look.contrast(look.text()) >= readableContrast, qPrintable(name));
            QCOMPARE(look.isDark, wantsLightText(look.background));
        }
    }
};

QTEST_APPLESS_MAIN(DockAppearanceTest)
#include "tst_DockAppearance.moc"
