#include "Base/Worker.h"
#include "Files.h"
#include "Focus/VerdictCache.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

struct Home {
    QTemporaryDir directory;
    QString folder = directory.filePath(u"Fendrel"_s);
    QString file = folder + u"/Verdicts.json"_s;
    Worker disk{u"disk"_s};

    VerdictCache cache() { return VerdictCache(folder, disk); }
    QByteArray content() {
        disk.flush();
        return contentOf(file);
    }
};

const Verdict elsewhere{
    .modeID = u"social"_s, .certainty = Certainty::certain, .what = u"Video feed"_s, .source = Source::model};
const Verdict nowhere{.certainty = Certainty::likely, .what = u"Müsic \"player\""_s, .source = Source::you};

} // namespace

class VerdictCacheTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void remembersAcrossRestarts() {
        Home home;
        auto cache = home.cache();
        LearnedAnswers entries{{u"org.player"_s, {elsewhere, WallTime(std::chrono::milliseconds(1'800'000'000'123))}},
                               {u"x.org"_s, {nowhere}}};
        for (char16_t character = 0; character < 0x180; ++character) {
            const QString text = u"\\\"%1/\u2028\U0001F3A8"_s.arg(QChar(character));
            entries.insert(text,
                           {{.modeID = text, .certainty = Certainty::unsure, .what = text, .source = Source::rule}});
        }
        for (auto entry = entries.begin(); entry != entries.end(); ++entry)
            cache.insert(entry.key(), *entry);
        cache.insert(u"gone.org"_s, {elsewhere});
        cache.remove(u"gone.org"_s);
        QVERIFY(!QFile::exists(home.file)); // nothing is written before it is asked to
        cache.save();
        QCOMPARE(VerdictCache::decode(QJsonDocument::fromJson(home.content()).object()), entries);
        QCOMPARE(permissionsOf(home.file), 0600U);
        QCOMPARE(home.cache().find(u"x.org"_s), nowhere);
        QCOMPARE(home.cache().find(u"gone.org"_s), std::nullopt);
    }

    void skipsABrokenEntryOnly() {
        const QByteArray good = R"({"certainty":"certain","what":"Video feed","source":"model","modeID":"social"})";
        const auto keysWith = [&](const QByteArray& entry) {
            const auto document = QJsonDocument::fromJson(R"({"a":)" + good + R"(,"b":)" + entry + "}");
            return VerdictCache::decode(document.object()).keys();
        };
        const char* ofLater = R"({"certainty":"unsure","what":"","source":"rule","modeID":null,"new":{"x":[1]}})";
        QCOMPARE(keysWith(ofLater).size(), 2);
        for (const char* broken :
             {R"({"certainty":"sure","what":"","source":"rule"})",
              R"({"certainty":"unsure","what":"","source":"them"})",
              R"({"certainty":"unsure","what":"","source":"rule","modeID":7})",
              R"({"certainty":"unsure","what":[],"source":"rule"})", R"({"certainty":"unsure","source":"rule"})",
              "null", R"([{"certainty":"unsure","what":"","source":"rule"}])"})
            QCOMPARE(keysWith(broken), QStringList{u"a"_s});
    }

    void keepsADamagedFileAside() {
        for (const char* damaged : {"{\"a\":{\"cert", "[]", ""}) {
            Home home;
            putFile(home.file, damaged);
            QVERIFY(!home.cache().find(u"a"_s));
            QVERIFY(QFile::exists(home.file + u".damaged-1"_s));
            QCOMPARE(contentOf(home.file + u".damaged-1"_s), damaged);
        }
    }

    void savesThatComeTogetherLoseNothing() {
        Home home;
        auto cache = home.cache();
        const auto go = std::make_shared<QSemaphore>();
        home.disk.post({}, [go] { go->acquire(); }); // so that the saves pile up behind it
        constexpr int count = 500;
        for (int index = 0; index < count; ++index) {
            cache.insert(QString::number(index), {elsewhere});
            cache.save();
        }
        cache.insert(u"not saved"_s, {elsewhere}); // may go on changing while it is being written
        go->release();
        QCOMPARE(QJsonDocument::fromJson(home.content()).object().size(), count);
    }
};

QTEST_APPLESS_MAIN(VerdictCacheTest)
#include "tst_VerdictCache.moc"
