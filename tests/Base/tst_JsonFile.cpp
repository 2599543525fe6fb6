#include "Base/JsonFile.h"

#include <QtTest>

#include <sys/stat.h>

using namespace fendrel;
using namespace Qt::StringLiterals;

class JsonFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.emplace(); }
    void writesForTheOwnerOnly();
    void failedWriteLeavesTheOldFile();
    void tellsWhyThereIsNothing_data();
    void tellsWhyThereIsNothing();
    void keepsEveryDamagedFile();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    void put(const QString& name, const QByteArray& content) const {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static unsigned modeOf(const QString& name) {
        struct stat status {};
        return stat(QFile::encodeName(name).constData(), &status) == 0 ? status.st_mode & 07777U : 0U;
    }

    std::optional<QTemporaryDir> m_folder;
};

void JsonFileTest::writesForTheOwnerOnly() {
    const QString file = path(u"new/deeper/file.json"_s);
    QVERIFY(JsonFile::write(file, R"({"a": 1})"));
    QCOMPARE(modeOf(file), 0600U);
    QCOMPARE(modeOf(path(u"new/deeper"_s)), 0700U);

    QVERIFY(QFile::setPermissions(file, QFile::Permissions(0x6644)));
    QVERIFY(JsonFile::write(file, R"({"a": 2})"));
    QCOMPARE(modeOf(file), 0600U);
    const auto read = JsonFile::read(file);
    QVERIFY(bool(read));
    QCOMPARE(*read, (QJsonObject{{u"a"_s, 2}}));
    QCOMPARE(QDir(path(u"new/deeper"_s)).entryList(QDir::Files), QStringList{u"file.json"_s});
}

void JsonFileTest::failedWriteLeavesTheOldFile() {
    put(u"file"_s, "kept");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Couldn't write"_s));
    QVERIFY(!JsonFile::write(path(u"file/inside.json"_s), "{}"));
    QFile file(path(u"file"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "kept");
}

void JsonFileTest::tellsWhyThereIsNothing_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("error");
    const int missing = int(JsonFile::ReadError::missing);
    const int unreadable = int(JsonFile::ReadError::unreadable);
    QTest::newRow("no file") << u"other"_s << QByteArray() << missing;
    QTest::newRow("empty") << u"file"_s << QByteArray() << unreadable;
    QTest::newRow("cut off") << u"file"_s << QByteArray(R"({"a": 1)") << unreadable;
    QTest::newRow("array") << u"file"_s << QByteArray("[1]") << unreadable;
    QTest::newRow("folder") << u"."_s << QByteArray() << unreadable;
}

void JsonFileTest::tellsWhyThereIsNothing() {
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(int, error);
    put(u"file"_s, content);
    const auto read = JsonFile::read(path(name));
    QVERIFY(!read);
    QCOMPARE(int(read.error()), error);
}

void JsonFileTest::keepsEveryDamagedFile() {
    QVERIFY(!JsonFile::keepAside(path(u"file"_s)));
    for (const QByteArray content : {"first", "second"}) {
        put(u"file"_s, content);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is kept as"_s));
        const auto aside = JsonFile::keepAside(path(u"file"_s));
        QVERIFY(aside);
        QVERIFY(!QFileInfo::exists(path(u"file"_s)));
        QFile kept(*aside);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), content);
    }
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
}

QTEST_APPLESS_MAIN(JsonFileTest)
#include "tst_JsonFile.moc"
