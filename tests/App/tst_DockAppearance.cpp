#include "App/DockAppearance.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class DockAppearanceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsItWasStored();
    void reads_data();
    void reads();
};

void DockAppearanceTest::comesBackAsItWasStored() {
    for (const auto& preset : DockAppearance::presets())
        QCOMPARE(dockAppearanceFromJson(toJson(preset.look)), preset.look);
    const DockAppearance odd{u"#010203"_s, true, 0.123456789, 1, 2, 0.8, 1.1, 0.3, 0.4, false};
    QCOMPARE(dockAppearanceFromJson(toJson(odd)), odd);
}

void DockAppearanceTest::reads_data() {
    QTest::addColumn<std::optional<DockAppearance>>("expected");
    using Look = std::optional<DockAppearance>;
    QTest::newRow("{}") << Look(DockAppearance());
    QTest::newRow(R"({"glow":{"colour":"red"},"spacing":3})") << Look({.spacing = 3});
    QTest::newRow(R"({"opacity":-1,"cornerRadius":1e300,"iconScale":0,"magnification":9})")
        << Look({.opacity = 0, .cornerRadius = 40, .iconScale = 0.75, .magnification = 2});
    QTest::newRow(R"({"background":"#ABCDEF"})") << Look({.background = u"#abcdef"_s});
    for (const char* unreadable : {R"({"background":"sky"})", R"({"background":1})", R"({"opacity":"1"})",
                                   R"({"opacity":null})", R"({"blur":1})", "[{}]", "{", ""})
        QTest::newRow(unreadable) << Look();
}

void DockAppearanceTest::reads() {
    QFETCH(const std::optional<DockAppearance>, expected);
    QVERIFY(dockAppearanceFromJson(QTest::currentDataTag()) == expected);
}

QTEST_APPLESS_MAIN(DockAppearanceTest)
#include "tst_DockAppearance.moc"
