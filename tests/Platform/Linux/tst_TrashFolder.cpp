#include "Files.h"
#include "Platform/Linux/Desktop/TrashFolder.h"
#include "fakes/FakeApplications.h"
#include "fakes/FakeClock.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

/// The trash of a home of the test's own, and of a disk beside it.
class TrashFolderTest : public QObject {
    Q_OBJECT

    QString path(const QString& inside) const { return m_home->filePath(inside); }

    std::unique_ptr<QTemporaryDir> m_home;
    FakeApplications m_applications;
    FakeClock m_clock;
    std::unique_ptr<TrashFolder> m_trash;
    int m_changes = 0;

private Q_SLOTS:
    void init() {
        m_home = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(path(u"data"_s)));
        m_trash = std::make_unique<TrashFolder>(
            TrashFolder::standardHome(),
            [disk = path(u"disk"_s)] { return std::vector<std::filesystem::path>{disk.toStdString()}; }, m_applications,
            std::make_shared<ApplicationCatalog>(QStringList(), DesktopEntryContext(), ApplicationIdentity::builtIn(),
                                                 m_clock));
        m_changes = 0;
        m_trash->onChanged = [this] { ++m_changes; };
    }

    void cleanup() { m_trash.reset(); }

    void followsWhatOthersDo() {
        QVERIFY(m_trash->isEmpty());
        putFile(path(u"data/Trash/files/a"_s), "a"); // in a folder that was not there
        QTRY_VERIFY(!m_trash->isEmpty());
        QVERIFY(QDir(path(u"data/Trash"_s)).removeRecursively());
        QTRY_VERIFY(m_trash->isEmpty());
        putFile(path(u"data/Trash/files/b"_s), "b");
        QTRY_VERIFY(!m_trash->isEmpty());
        QVERIFY(QFile::remove(path(u"data/Trash/files/b"_s)));
        QTRY_VERIFY(m_trash->isEmpty());
        QCOMPARE(m_changes, 4);
        putFile(path(u"disk/files/c"_s), "c");
        QTRY_VERIFY(!m_trash->isEmpty());
        QVERIFY(QFile::remove(path(u"disk/files/c"_s)));
        QTRY_VERIFY(m_trash->isEmpty());
    }

    void movesFilesAndNotWhatLinksLeadTo() {
        putFile(path(u"kept"_s), "kept");
        putFile(path(u"folder/a"_s), "a");
        QVERIFY(QFile::link(path(u"kept"_s), path(u"link"_s)));
        std::optional<QStringList> failed;
        m_trash->add({path(u"folder"_s), path(u"missing"_s), path(u"link"_s)},
                     [&](const QStringList& paths) { failed = paths; });
        QTRY_COMPARE(failed, QStringList{path(u"missing"_s)});
        QTRY_VERIFY(!m_trash->isEmpty());
        QCOMPARE(contentOf(path(u"data/Trash/files/folder/a"_s)), "a");
        QVERIFY(contentOf(path(u"data/Trash/info/folder.trashinfo"_s)).contains("/folder\n"));
        QVERIFY(!QFileInfo::exists(path(u"link"_s)) && !QFileInfo(path(u"link"_s)).isSymLink());
        QCOMPARE(contentOf(path(u"kept"_s)), "kept");
    }

    void movesNothingWithoutATrash() {
        putFile(path(u"data"_s), "no folder");
        putFile(path(u"kept"_s), "kept");
        std::optional<QStringList> failed;
        m_trash->add({path(u"kept"_s)}, [&](const QStringList& paths) { failed = paths; });
        QTRY_COMPARE(failed, QStringList{path(u"kept"_s)});
        QCOMPARE(contentOf(path(u"kept"_s)), "kept");
    }

    void emptiesAllOfItAndNothingElse() {
        putFile(path(u"kept/a"_s), "kept");
        putFile(path(u"disk/files/on disk"_s), "a");
        putFile(path(u"data/Trash/files/deep/deeper/a"_s), "a");
        putFile(path(u"data/Trash/files/.hidden"_s), "a");
        putFile(QFile::decodeName("data/Trash/files/\xff").prepend(path({})), "a"); // no text in any encoding
        putFile(path(u"data/Trash/directorysizes"_s), "a");
        for (const QString& name : {u"deep"_s, u"orphan"_s})
            putFile(path(u"data/Trash/info/%1.trashinfo"_s.arg(name)), "a");
        QVERIFY(QFile::link(path(u"kept"_s), path(u"data/Trash/files/deep/link"_s)));
        QVERIFY(QFile::link(path(u"kept"_s), path(u"data/Trash/files/link"_s)));
        QVERIFY(QFile::setPermissions(path(u"data/Trash/files/deep"_s), QFile::ReadOwner | QFile::ExeOwner));
        std::optional<bool> isGone;
        m_trash->empty([&](bool success) { isGone = success; });
        QTRY_COMPARE(isGone, true);
        QTRY_VERIFY(m_trash->isEmpty());
        QStringList left;
        QDirIterator files(m_home->path(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (files.hasNext())
            left.append(files.next());
        QCOMPARE(left, QStringList{path(u"kept/a"_s)});
    }
};

QTEST_GUILESS_MAIN(TrashFolderTest)
#include "tst_TrashFolder.moc"
