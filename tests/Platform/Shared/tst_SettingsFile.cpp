#include "Files.h"
#include "Platform/Shared/SettingsFile.h"
#include "Table.h"
#include "fakes/FakeClock.h"

#include <QJsonDocument>
#include <QtTest>

#include <cmath>
#include <limits>
#include <optional>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

using Dictionary = QHash<QString, double>;

Q_DECLARE_METATYPE(StoredValue)

namespace {

constexpr auto atOnce = SettingsStore::Urgency::atOnce;
constexpr auto relaxed = SettingsStore::Urgency::relaxed;

bool isSame(const StoredValue& left, const StoredValue& right) {
    if (const auto* number = std::get_if<double>(&left)) { // NaN and the sign of zero count too
        const auto* other = std::get_if<double>(&right);
        return other && std::signbit(*number) == std::signbit(*other) &&
               (*number == *other || (std::isnan(*number) && std::isnan(*other)));
    }
    return left == right;
}

} // namespace

class SettingsFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        m_disk.emplace(u"disk"_s); // waits for what the test before may still write
        m_folder.emplace();
        m_path = m_folder->filePath(u"settings.json"_s);
    }

    void typesSurviveARoundTrip_data() {
        const Table<StoredValue, QByteArray> row("value", "text");
        using Numbers = std::numeric_limits<double>;
        row("true", true, "true");
        row("largest integer", std::numeric_limits<qint64>::max(), "9223372036854775807");
        row("smallest integer", std::numeric_limits<qint64>::min(), "-9223372036854775808");
        row("double that is whole", 2048.0, R"({"$double":2048})");
        row("minus zero", -0.0, R"({"$double":"-0"})");
        row("infinite", -Numbers::infinity(), R"({"$double":"-inf"})");
        row("NaN", Numbers::quiet_NaN(), R"({"$double":"nan"})");
        row("text", u"caf\u00e9 \"x\"\n"_s, "\"caf\xc3\xa9 \\\"x\\\"\\n\"");
        row("empty text", QString(u""_s), "\"\"");
        row("bytes of text", "fire, flood"_qba, R"({"$data":"fire, flood"})");
        row("other bytes", QByteArray("\xff\x00", 2), R"({"$base64":"/wA="})");
        row("date", QDateTime({2026, 1, 5}, {9, 0, 0, 250}, Qt::UTC), R"({"$date":"2026-01-05T09:00:00.250Z"})");
        row("first date", QDateTime({1, 1, 1}, {0, 0}, Qt::UTC), R"({"$date":"0001-01-01T00:00:00.000Z"})");
        row("no date", QDateTime(), R"({"$date":""})");
        row("list", QStringList{u"b"_s, u""_s, u"a"_s}, R"(["b","","a"])");
        row("dictionary that looks tagged", Dictionary{{u"$double"_s, 5}}, R"({"$dictionary":{"$double":5}})");
        row("infinite in a dictionary", Dictionary{{u"a"_s, Numbers::infinity()}}, R"({"a":"inf"})");
    }

    void typesSurviveARoundTrip() {
        QFETCH(StoredValue, value);
        QFETCH(QByteArray, text);
        open().set(u"key"_s, value, atOnce);
        QCOMPARE(content().simplified().replace(" ", ""), R"({"key":)" + text.replace(" ", "") + "}");
        const auto stored = open().value(u"key"_s);
        QVERIFY(stored);
        QCOMPARE(stored->index(), value.index());
        QVERIFY(isSame(*stored, value));
    }

    void readsWhatPeopleWrite_data() {
        const Table<StoredValue> reads("value");
        reads(R"({"$double": 0.5})", 0.5);
        reads(R"({"$date": "2026-01-05T10:00:00+01:00"})", QDateTime({2026, 1, 5}, {9, 0}, Qt::UTC));
        reads(R"({"$dictionary": {"a": 1}})", Dictionary{{u"a"_s, 1}});
        for (const char* skipped :
             {"null", "[1]", R"(["a", null])", R"({"a": "1"})", R"({"a": {}})", R"({"$double": "1"})",
              R"({"$date": 5})", R"({"$date": "yesterday"})", R"({"$data": 1})", R"({"$base64": "a"})",
              R"({"$later": 1})", R"({"$data": "a", "$date": "b"})"})
            reads(skipped, u"the default"_s);
    }

    void readsWhatPeopleWrite() {
        QFETCH(StoredValue, value);
        putFile(m_path, QByteArray("{\"key\": ") + QTest::currentDataTag() + "}");
        QVERIFY(isSame(open().value(u"key"_s).value_or(u"the default"_s), value));
    }

    void keepsWhatItCannotRead() {
        putFile(m_path, R"({"foreign": {"deep": [1, null]}, "nothing": null, "replaced": null, "removed": [1]})");
        {
            auto settings = open();
            settings.set(u"replaced"_s, true, atOnce);
            settings.remove(u"removed"_s);
            settings.remove(u"absent"_s);
        }
        const char* expected = R"({"foreign": {"deep": [1, null]}, "nothing": null, "replaced": true})";
        QCOMPARE(document(), QJsonDocument::fromJson(expected).object());
    }

    void keepsADamagedFileAside() {
        putFile(m_path, "{\"half\": ");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is kept as"_s));
        auto settings = open();
        QVERIFY(!settings.value(u"half"_s));
        settings.set(u"new"_s, true, atOnce);
        QCOMPARE(document(), (QJsonObject{{u"new"_s, true}}));
        QCOMPARE(contentOf(m_path + u".damaged-1"_s), "{\"half\": ");
    }

    void writesInTime() {
        const auto stored = [this] { return document().keys(); };
        {
            auto settings = open();
            settings.set(u"a"_s, qint64(1), relaxed);
            QCOMPARE(stored(), QStringList());
            m_clock.advance(20s);
            settings.set(u"b"_s, qint64(1), relaxed);
            m_clock.advance(10s);
            QCOMPARE(stored(), (QStringList{u"a"_s, u"b"_s}));
            QCOMPARE(m_clock.pending(), std::size_t(0));

            settings.set(u"c"_s, qint64(1), relaxed);
            settings.set(u"c"_s, qint64(1), atOnce); // the same value, but at once now
            QCOMPARE(stored().size(), 3);
            QCOMPARE(m_clock.pending(), std::size_t(0));
            settings.set(u"d"_s, qint64(1), relaxed);
            QCOMPARE(stored().size(), 3);
        }
        QCOMPARE(stored().size(), 4);
        QCOMPARE(permissionsOf(m_path), 0600U);
    }

    void sameValueIsNotWritten() {
        auto settings = open();
        settings.set(u"a"_s, qint64(1), atOnce);
        QVERIFY(!content().isEmpty());
        QVERIFY(QFile::remove(m_path));
        settings.set(u"a"_s, qint64(1), atOnce);
        settings.set(u"a"_s, qint64(1), relaxed);
        settings.remove(u"b"_s);
        QCOMPARE(content(), QByteArray());
        QCOMPARE(m_clock.pending(), std::size_t(0));
        settings.set(u"a"_s, 1.0, atOnce); // the type is a part of the value
        QVERIFY(!content().isEmpty());
    }

private:
    SettingsFile open() { return {m_path, *m_disk, m_clock}; }
    QByteArray content() {
        m_disk->flush();
        return contentOf(m_path);
    }
    QJsonObject document() { return QJsonDocument::fromJson(content()).object(); }
    std::optional<QTemporaryDir> m_folder;
    QString m_path;
    std::optional<Worker> m_disk;
    FakeClock m_clock;
};

QTEST_GUILESS_MAIN(SettingsFileTest)
#include "tst_SettingsFile.moc"
