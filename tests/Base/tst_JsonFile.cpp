#include "Base/JsonFile.h"
#include "Files.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class JsonFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesForTheOwnerOnly() {
        const QTemporaryDir home;
        const QString folder = home.filePath(u"new/deeper"_s), file = folder + u"/file.json"_s;
        QVERIFY(JsonFile::write(file, R"({"a": 1})"));
        QCOMPARE(permissionsOf(file), 0600U);
        QCOMPARE(permissionsOf(folder), 0700U);
        QVERIFY(QFile::setPermissions(file, QFile::Permissions(0x6644)));
        QVERIFY(JsonFile::write(file, R"({"a": 2})"));
        QCOMPARE(permissionsOf(file), 0600U);
        QCOMPARE(*JsonFile::read(file), (QJsonObject{{u"a"_s, 2}}));
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList{u"file.json"_s});
    }

    void failedWriteLeavesTheOldFile() {
        const QTemporaryDir home;
        putFile(home.filePath(u"file"_s), "kept");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Couldn't write"_s));
        QVERIFY(!JsonFile::write(home.filePath(u"file/inside.json"_s), "{}"));
        QCOMPARE(contentOf(home.filePath(u"file"_s)), "kept");
    }

    void tellsWhyThereIsNothing() {
        using enum JsonFile::ReadError;
        const QTemporaryDir home;
        const QString file = home.filePath(u"file"_s);
        QVERIFY(JsonFile::read(file).error() == missing);
        QVERIFY(JsonFile::read(home.path()).error() == unreadable);
        for (const char* content : {"", R"({"a": 1)", "[1]"}) {
            putFile(file, content);
            QVERIFY2(JsonFile::read(file).error() == unreadable, content);
        }
    }

    void keepsEveryDamagedFile() {
        const QTemporaryDir home;
        const QString file = home.filePath(u"file"_s);
        QStringList kept;
        for (const char* content : {"first", "second"}) {
            putFile(file, content);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is kept as"_s));
            kept.append(JsonFile::keepAside(file).value());
        }
        QVERIFY(!JsonFile::keepAside(file)); // it is gone
        QCOMPARE(contentOf(kept[0]), "first");
        QCOMPARE(contentOf(kept[1]), "second");
    }
};

QTEST_APPLESS_MAIN(JsonFileTest)
#include "tst_JsonFile.moc"
