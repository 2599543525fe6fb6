#include "Platform/Shared/SettingsFile.h"
#include "fakes/FakeClock.h"

#include <QJsonDocument>
#include <QtTest>

#include <sys/stat.h>

#include <cmath>
#include <limits>
#include <optional>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

using Dictionary = QHash<QString, double>;

Q_DECLARE_METATYPE(StoredValue)

class SettingsFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void typesSurviveARoundTrip_data();
    void typesSurviveARoundTrip();
    void readsWhatPeopleWrite_data();
    void readsWhatPeopleWrite();
    void keepsWhatItCannotRead();
    void keepsADamagedFileAside();
    void writesInTime();
    void sameValueIsNotWritten();
    void livesWithoutAFolder();

private:
    SettingsFile open() { return {m_path, *m_disk, m_clock}; }
    QByteArray content() {
        m_disk->flush();
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QJsonObject document() { return QJsonDocument::fromJson(content()).object(); }
    void put(const QByteArray& text) {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    std::optional<QTemporaryDir> m_folder;
    QString m_path;
    std::unique_ptr<Worker> m_disk;
    FakeClock m_clock;
};

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

void SettingsFileTest::init() {
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    m_folder.emplace();
    m_path = m_folder->filePath(u"settings.json"_s);
    m_disk = std::make_unique<Worker>(u"disk"_s);
}

void SettingsFileTest::cleanup() {
    m_disk.reset();
}

void SettingsFileTest::typesSurviveARoundTrip_data() {
    QTest::addColumn<StoredValue>("value");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* name, const StoredValue& value, const char* text) {
        QTest::newRow(name) << value << QByteArray(text);
    };
    using Numbers = std::numeric_limits<double>;
    row("true", true, "true");
    row("false", false, "false");
    row("integer", qint64(2048), "2048");
    row("largest integer", std::numeric_limits<qint64>::max(), "9223372036854775807");
    row("smallest integer", std::numeric_limits<qint64>::min(), "-9223372036854775808");
    row("fraction", 0.1, "0.1");
    row("double that is whole", 2048.0, R"({"$double":2048})");
    row("huge double", 1e300, "1e+300");
    row("smallest double", Numbers::denorm_min(), "5e-324");
    row("minus zero", -0.0, R"({"$double":"-0"})");
    row("infinite", -Numbers::infinity(), R"({"$double":"-inf"})");
    row("NaN", Numbers::quiet_NaN(), R"({"$double":"nan"})");
    row("text", u"caf\u00e9 \"x\"\n"_s, "\"caf\xc3\xa9 \\\"x\\\"\\n\"");
    row("text that looks like a number", u"1"_s, "\"1\"");
    row("empty text", QString(u""_s), "\"\"");
    row("bytes of text", "{\"a\":1}"_qba, R"({"$data":"{\"a\":1}"})");
    row("other bytes", QByteArray("\xff\x00", 2), R"({"$base64":"/wA="})");
    row("empty bytes", QByteArray(""), R"({"$data":""})");
    row("date", QDateTime({2026, 1, 5}, {9, 0, 0, 250}, Qt::UTC), R"({"$date":"2026-01-05T09:00:00.250Z"})");
    row("first date", QDateTime({1, 1, 1}, {0, 0}, Qt::UTC), R"({"$date":"0001-01-01T00:00:00.000Z"})");
    row("no date", QDateTime(), R"({"$date":""})");
    row("list", QStringList{u"b"_s, u""_s, u"a"_s}, R"(["b","","a"])");
    row("empty list", QStringList(), "[]");
    row("dictionary", Dictionary{{u"b"_s, 2.5}, {u"a"_s, 1}}, R"({"a":1,"b":2.5})");
    row("empty dictionary", Dictionary(), "{}");
    row("dictionary that looks tagged", Dictionary{{u"$double"_s, 5}}, R"({"$dictionary":{"$double":5}})");
    row("infinite in a dictionary", Dictionary{{u"a"_s, Numbers::infinity()}}, R"({"a":"inf"})");
}

void SettingsFileTest::typesSurviveARoundTrip() {
    QFETCH(StoredValue, value);
    QFETCH(QByteArray, text);
    open().set(u"key"_s, value, atOnce);
    QVERIFY2(content().simplified().replace(" ", "") == R"({"key":)" + QByteArray(text).replace(" ", "") + "}",
             content().constData());
    const auto stored = open().value(u"key"_s);
    QVERIFY(stored);
    QCOMPARE(stored->index(), value.index());
    QVERIFY(isSame(*stored, value));
}

void SettingsFileTest::readsWhatPeopleWrite_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isPresent");
    QTest::addColumn<StoredValue>("value");
    const auto reads = [](const char* text, const StoredValue& value) {
        QTest::newRow(text) << QByteArray(text) << true << value;
    };
    const auto skips = [](const char* text) {
        QTest::newRow(text) << QByteArray(text) << false << StoredValue();
    };
    reads(R"({"$double": 0.5})", 0.5);
    reads(R"({"$date": "2026-01-05T10:00:00+01:00"})", QDateTime({2026, 1, 5}, {9, 0}, Qt::UTC));
    reads(R"({"$dictionary": {"a": 1}})", Dictionary{{u"a"_s, 1}});
    skips("null");
    skips("[1]");
    skips(R"(["a", null])");
    skips(R"({"a": "1"})");
    skips(R"({"a": {}})");
    skips(R"({"$double": "1"})");
    skips(R"({"$double": true})");
    skips(R"({"$date": 5})");
    skips(R"({"$date": "yesterday"})");
    skips(R"({"$data": 1})");
    skips(R"({"$base64": "a"})");
    skips(R"({"$base64": 1})");
    skips(R"({"$later": 1})");
    skips(R"({"$data": "a", "$date": "b"})");
}

void SettingsFileTest::readsWhatPeopleWrite() {
    QFETCH(QByteArray, text);
    QFETCH(bool, isPresent);
    QFETCH(StoredValue, value);
    put("{\"key\": " + text + "}");
    const auto stored = open().value(u"key"_s);
    QCOMPARE(stored.has_value(), isPresent);
    QVERIFY(!stored || isSame(*stored, value));
}

void SettingsFileTest::keepsWhatItCannotRead() {
    put(R"({"foreign": {"deep": [1, null]}, "nothing": null, "replaced": null, "removed": [1]})");
    {
        auto settings = open();
        settings.set(u"replaced"_s, true, atOnce);
        settings.remove(u"removed"_s);
        settings.remove(u"absent"_s);
    }
    const auto expected =
        QJsonDocument::fromJson(R"({"foreign": {"deep": [1, null]}, "nothing": null, "replaced": true})")
            .object();
    QCOMPARE(document(), expected);
}

void SettingsFileTest::keepsADamagedFileAside() {
    put("{\"half\": ");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is kept as"_s));
    auto settings = open();
    QVERIFY(!settings.value(u"half"_s));
    settings.set(u"new"_s, true, atOnce);
    QCOMPARE(document(), (QJsonObject{{u"new"_s, true}}));
    QFile aside(m_path + u".damaged-1"_s);
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), "{\"half\": ");
}

void SettingsFileTest::writesInTime() {
    const auto stored = [this] { return document().keys(); };
    {
        auto settings = open();
        settings.set(u"a"_s, qint64(1), relaxed);
        QCOMPARE(stored(), QStringList());
        m_clock.advance(40s);
        settings.set(u"b"_s, qint64(1), relaxed);
        m_clock.advance(20s);
        QCOMPARE(stored(), (QStringList{u"a"_s, u"b"_s}));
        QCOMPARE(m_clock.pending(), std::size_t(0));

        settings.set(u"c"_s, qint64(1), relaxed);
        settings.set(u"d"_s, qint64(1), atOnce);
        QCOMPARE(stored().size(), 4);
        QCOMPARE(m_clock.pending(), std::size_t(0));

        settings.set(u"e"_s, qint64(1), relaxed);
        settings.set(u"e"_s, qint64(1), atOnce);
        QCOMPARE(stored().size(), 5);

        settings.set(u"f"_s, qint64(1), relaxed);
        QCOMPARE(stored().size(), 5);
    }
    QCOMPARE(stored().size(), 6);
    struct stat status {};
    QCOMPARE(stat(QFile::encodeName(m_path).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777U, 0600U);
}

void SettingsFileTest::sameValueIsNotWritten() {
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

void SettingsFileTest::livesWithoutAFolder() {
    put("not a folder");
    m_path += u"/settings.json"_s;
    auto settings = open();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Couldn't write"_s));
    for (qint64 number = 0; number < 3; ++number) {
        settings.set(u"a"_s, number, atOnce);
        m_disk->flush();
    }
    QCOMPARE(settings.read<qint64>(u"a"_s), std::optional<qint64>(2));
}

QTEST_GUILESS_MAIN(SettingsFileTest)
#include "tst_SettingsFile.moc"
