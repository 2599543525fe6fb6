#include "Messages/BreakThrough.h"

#include <QTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class TestBreakThrough : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void reasons_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char* name, const QStringList& words, const QString& title, const QString& body,
                            const QString& reason) { QTest::newRow(name) << words << title << body << reason; };
        row("in the title", {u"prod"_s}, u"Prod is down"_s, {}, u"from Prod is down"_s);
        row("part of a word", {u"prod"_s}, u"About production"_s, u"products"_s, {});
        row("beside punctuation", {u"prod"_s}, {}, u"(PROD)!"_s, u"mentions prod"_s);
        row("beside an underscore", {u"prod"_s}, {}, u"prod_eu"_s, {});
        row("the title comes first", {u"asap"_s, u"anna"_s}, u"Anna"_s, u"asap"_s, u"from Anna"_s);
        row("the first word", {u"asap"_s, u"now"_s}, u"x"_s, u"now, asap"_s, u"mentions asap"_s);
        row("signs of patterns", {u"c++ (now)?"_s}, {}, u"About C++ (now)? Yes"_s, u"mentions c++ (now)?"_s);
        row("a dot is a dot", {u"a.b"_s}, {}, u"axb"_s, {});
        row("Cyrillic without case", {u"срочно"_s}, {}, u"Очень СРОЧНО!"_s, u"mentions срочно"_s);
        row("Cyrillic part of a word", {u"сроч"_s}, {}, u"срочно"_s, {});
        row("an accent ends no word", {u"caf"_s}, {}, u"café"_s, {});
        row("empty words", {QString(), u"x"_s}, u"title"_s, u"body"_s, {});
    }
    void reasons() {
        QFETCH(QStringList, words);
        QFETCH(QString, title);
        QFETCH(QString, body);
        QFETCH(QString, reason);
        const HeldMessage message{.title = title, .body = body};
        QCOMPARE(BreakThrough(words).reason(message).value_or(QString()), reason);
    }
};

QTEST_APPLESS_MAIN(TestBreakThrough)
#include "tst_BreakThrough.moc"
