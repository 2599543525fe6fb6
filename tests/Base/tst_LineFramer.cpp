#include "Base/LineFramer.h"

#include <QtTest>

#include <string>
#include <vector>

using fendrel::LineFramer;

namespace {

using Lines = std::vector<std::string>;

bool feed(LineFramer& framer, std::string_view bytes, Lines& lines) {
    return framer.feed(bytes, [&](std::string_view line) { lines.emplace_back(line); });
}

} // namespace

class LineFramerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesTheSameLinesHoweverTheStreamIsCut() {
        const std::string stream = "{\"a\":1}\n\n\xc3\xa4\r\nlast\nunfinished";
        const Lines expected{"{\"a\":1}", "", "\xc3\xa4\r", "last"};
        for (std::size_t size = 1; size <= stream.size(); ++size) {
            LineFramer framer;
            Lines lines;
            for (std::size_t start = 0; start < stream.size(); start += size)
                QVERIFY(feed(framer, std::string_view(stream).substr(start, size), lines));
            QVERIFY2(lines == expected, qPrintable(QString::number(size)));
            QVERIFY(feed(framer, " end\n", lines));
            QCOMPARE(lines.back(), "unfinished end");
        }
    }

    void cutsOffAPeerThatNeverEndsItsLine() {
        const std::string full(LineFramer::limit, 'x');
        LineFramer framer;
        Lines lines;
        QVERIFY(feed(framer, full + "\n" + full, lines));
        QVERIFY(feed(framer, "\n", lines));
        QCOMPARE(lines.size(), std::size_t(2));
        QVERIFY(lines.back() == full);
        QVERIFY(feed(framer, full, lines));
        QVERIFY(!feed(framer, "x", lines));
    }
};

QTEST_APPLESS_MAIN(LineFramerTest)
#include "tst_LineFramer.moc"
