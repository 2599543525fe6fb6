#include "Platform/Linux/Portal/FileAddress.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class FileAddressTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void names_data() {
        using Path = std::optional<QString>;
        const Table<QString, Path> row("address", "path");
        row("plain", u"file:///home/ann/a.json"_s, Path(u"/home/ann/a.json"_s));
        row("escapes", u"file:///a%20b/%C3%A4/50%25/%23%3F%2520"_s, Path(u"/a b/ä/50%/#?%20"_s));
        row("not escaped", u"file:///ä b"_s, Path(u"/ä b"_s));
        row("this computer", u"FILE://localhost/a"_s, Path(u"/a"_s));
        row("another computer", u"file://server/a"_s, {});
        row("another kind", u"sftp:///a"_s, {});
        row("no text", u"file:///a%FF.json"_s, {});
        row("the beginning of a letter", u"file:///a%C3"_s, {});
        row("an end inside", u"file:///a%00b"_s, {});
        row("nothing", {}, {});
    }
    void names() {
        QFETCH(const QString, address);
        QTEST(pathOfFileAddress(address), "path");
    }
};

QTEST_GUILESS_MAIN(FileAddressTest)
#include "tst_FileAddress.moc"
