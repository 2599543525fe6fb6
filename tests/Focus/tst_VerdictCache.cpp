#include "Base/Worker.h"
#include "Focus/VerdictCache.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class VerdictCacheTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void remembersAcrossRestarts();
    void skipsABrokenEntryOnly_data();
    void skipsABrokenEntryOnly();
    void keepsADamagedFileAside();
    void savesThatComeTogetherLoseNothing();
};

namespace {

struct Home {
    QTemporaryDir directory;
    QString folder = directory.filePath(u"Fendrel"_s);
    QString file = folder + u"/Verdicts.json"_s;
    Worker disk{u"disk"_s};

    VerdictCache cache() { return VerdictCache(folder, disk); }
    QByteArray content() {
        disk.flush();
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
};

const Verdict elsewhere{
    .modeID = u"social"_s, .certainty = Certainty::certain, .what = u"Video feed"_s, .source = Source::model};
const Verdict nowhere{.certainty = Certainty::likely, .what = u"Müsic \"player\""_s, .source = Source::you};

} // namespace

void VerdictCacheTest::remembersAcrossRestarts() {
    Home home;
    auto cache = home.cache();
    QHash<QString, Verdict> entries{{u"org.player"_s, elsewhere}, {u"x.org"_s, nowhere}};
    for (char16_t character = 0; character < 0x180; ++character) {
        const QString text = u"\\\"%1/\u2028\U0001F3A8"_s.arg(QChar(character));
        entries.insert(text,
                       {.modeID = text, .certainty = Certainty::unsure, .what = text, .source = Source::rule});
    }
    for (auto entry = entries.begin(); entry != entries.end(); ++entry)
        cache.insert(entry.key(), *entry);
    cache.insert(u"gone.org"_s, elsewhere);
    cache.remove(u"gone.org"_s);
    QVERIFY(!QFile::exists(home.file)); // nothing is written before it is asked to
    cache.save();
    QCOMPARE(VerdictCache::decode(QJsonDocument::fromJson(home.content()).object()), entries);
    QCOMPARE(QFile::permissions(home.file) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    QCOMPARE(home.cache().find(u"x.org"_s), nowhere);
    QCOMPARE(home.cache().find(u"gone.org"_s), std::nullopt);
}

void VerdictCacheTest::skipsABrokenEntryOnly_data() {
    QTest::addColumn<bool>("isSound");
    QTest::newRow(R"({"certainty":"unsure","what":"","source":"rule"})") << true;
    QTest::newRow(R"({"certainty":"unsure","what":"","source":"rule","modeID":null,"model":{"x":[1]}})")
        << true;
    for (const char* entry :
         {R"({"certainty":"sure","what":"","source":"rule"})",
          R"({"certainty":"unsure","what":"","source":"them"})",
          R"({"certainty":"unsure","what":"","source":"rule","modeID":7})",
          R"({"certainty":"unsure","what":[],"source":"rule"})", R"({"certainty":"unsure","source":"rule"})",
          "null", "\"certain\"", R"([{"certainty":"unsure","what":"","source":"rule"}])"})
        QTest::newRow(entry) << false;
}

void VerdictCacheTest::skipsABrokenEntryOnly() {
    QFETCH(const bool, isSound);
    const QByteArray good = R"({"certainty":"certain","what":"Video feed","source":"model","modeID":"social"})";
    const auto document = QJsonDocument::fromJson(R"({"a":)" + good + R"(,"b":)" + QTest::currentDataTag() +
                                                  R"(,"c":)" + good + "}");
    QVERIFY(document.isObject());
    QHash<QString, Verdict> expected{{u"a"_s, elsewhere}, {u"c"_s, elsewhere}};
    if (isSound)
        expected.insert(u"b"_s, {.certainty = Certainty::unsure, .what = u""_s, .source = Source::rule});
    QCOMPARE(VerdictCache::decode(document.object()), expected);
}

void VerdictCacheTest::keepsADamagedFileAside() {
    Home home;
    QVERIFY(QDir().mkpath(home.folder));
    for (const QByteArray& damaged : {QByteArray("{\"a\":{\"cert"), QByteArray("[]"), QByteArray()}) {
        QFile file(home.file);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(damaged) == damaged.size());
        file.close();
        QVERIFY(!home.cache().find(u"a"_s));
        const QStringList aside = QDir(home.folder).entryList({u"*.damaged-*"_s}, QDir::Files, QDir::Name);
        QFile kept(home.folder + u'/' + aside.value(aside.size() - 1));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), damaged);
    }
}

void VerdictCacheTest::savesThatComeTogetherLoseNothing() {
    Home home;
    auto cache = home.cache();
    const auto go = std::make_shared<QSemaphore>();
    home.disk.post({}, [go] { go->acquire(); }); // so that the saves pile up behind it
    constexpr int count = 500;
    for (int index = 0; index < count; ++index) {
        cache.insert(QString::number(index), elsewhere);
        cache.save();
    }
    cache.insert(u"not saved"_s, elsewhere); // may go on changing while it is being written
    go->release();
    QCOMPARE(QJsonDocument::fromJson(home.content()).object().size(), count);
}

QTEST_APPLESS_MAIN(VerdictCacheTest)
#include "tst_VerdictCache.moc"
