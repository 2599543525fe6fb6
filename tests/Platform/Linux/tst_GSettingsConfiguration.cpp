#include "Platform/Linux/Desktop/GSettingsConfiguration.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class GSettingsConfigurationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("GSETTINGS_BACKEND", "memory"); }

    void whatIsMissingIsNotThere() {
        GSettingsConfiguration configuration;
        const ConfigurationKey key{.schema = u"org.gnome.desktop.notifications"_s, .key = u"show-banners"_s};
        const auto isNotThere = [&](const ConfigurationKey& missing) {
            return !configuration.value(missing) && !configuration.isSet(missing) &&
                   !configuration.write(missing, u"true"_s) && !configuration.reset(missing);
        };
        QVERIFY(isNotThere({.schema = u"org.missing"_s, .key = key.key}));
        QVERIFY(isNotThere({.schema = key.schema, .key = u"missing"_s}));
        QVERIFY(isNotThere({.schema = key.schema, .key = key.key, .path = u"/elsewhere/"_s}));
        QVERIFY(isNotThere({.schema = key.schema + u".application"_s, .key = u"enable"_s})); // of no place
        QVERIFY(isNotThere({.schema = key.schema + u".application"_s, .key = u"enable"_s, .path = u"here"_s}));
    }

    void aKeyIsSetAndReset() {
        GSettingsConfiguration configuration;
        const ConfigurationKey key{.schema = u"org.gnome.desktop.notifications"_s, .key = u"show-banners"_s};
        QVERIFY(!configuration.write(key, u"'no boolean'"_s));
        QVERIFY(!configuration.isSet(key));
        QVERIFY(configuration.write(key, u"false"_s));
        QVERIFY(configuration.isSet(key));
        QCOMPARE(configuration.value(key), u"false"_s);
        QVERIFY(configuration.reset(key));
        QVERIFY(!configuration.isSet(key));
        QCOMPARE(configuration.value(key), u"true"_s);
        QVERIFY(configuration.flush(QDeadlineTimer(std::chrono::minutes(1))));
    }
};

QTEST_GUILESS_MAIN(GSettingsConfigurationTest)
#include "tst_GSettingsConfiguration.moc"
