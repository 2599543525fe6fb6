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
};

QTEST_APPLESS_MAIN(DockAppearanceTest)
#include "tst_DockAppearance.moc"
