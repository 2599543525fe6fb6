#include "Files.h"
#include "Platform/Linux/Documents/DesktopDocuments.h"
#include "Platform/Linux/Documents/OpenFiles.h"
#include "Platform/Linux/Documents/RecentFiles.h"
#include "Platform/Linux/Documents/TitledFile.h"
#include "Table.h"

#include <QTemporaryDir>
#include <QtTest>

#include <optional>

using namespace fendrel;
using namespace Qt::StringLiterals;

class DesktopDocumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsDocumentsFromPrograms() {
        const QString home = u"/home/me"_s;
        for (const char* path :
             {"/home/me/Report.odt", "/home/me/a/b/Paper.pdf", "/home/me/Music/song.flac", "/home/me/src/main.cpp"})
            QVERIFY2(openFiles::isDocument(QString::fromLatin1(path), home), path);
        for (const char* path : {"/home/you/Report.odt", "/home/media/Report.odt", "/usr/share/doc/a.pdf",
                                 "/home/me/.config/app/notes.txt", "/home/me/src/.git/index.txt", "/home/me/app.log",
                                 "/home/me/mail.sqlite3", "/home/me/places.db-wal", "/home/me/lib/a.so",
                                 "/home/me/lib/a.jar", "/home/me/.X11-lock", "/home/me/film.mkv.part"})
            QVERIFY2(!openFiles::isDocument(QString::fromLatin1(path), home), path);
    }

    void knowsTheFileOfAWindow_data() {
        const Table<QString, QString> row("title", "file");
        row("an editor", u"notes.txt - Mousepad"_s, u"/home/me/notes.txt"_s);
        row("changed", u"*notes.txt - Mousepad"_s, u"/home/me/notes.txt"_s);
        row("with its folder", u"notes.txt (~/Work) - gedit"_s, u"/home/me/Work/notes.txt"_s);
        row("with its path", u"/home/me/Work/notes.txt — Editor"_s, u"/home/me/Work/notes.txt"_s);
        row("the longest name", u"Launch notes.txt - Mousepad"_s, u"/home/me/Launch notes.txt"_s);
        row("a part of a name", u"old-notes.txt - Mousepad"_s, {});
        row("more than a name", u"notes.txt.bak - Mousepad"_s, {});
        row("none", u"Untitled 1 - Mousepad"_s, {});
    }

    void knowsTheFileOfAWindow() {
        QFETCH(const QString, title);
        QFETCH(const QString, file);
        const QStringList known{u"/home/me/notes.txt"_s, u"/home/me/Work/notes.txt"_s, u"/home/me/Launch notes.txt"_s,
                                u"/home/me/"_s};
        QCOMPARE(titledFile(title, known).value_or(QString()), file);
    }

    void readsWhatWasUsedRecently() {
        const auto bookmark = [](const char* address, const char* date) {
            return QByteArray("<bookmark href=\"") + address + "\" modified=\"" + date + "\"><info/></bookmark>";
        };
        const QByteArray list = "<?xml version=\"1.0\"?><xbel version=\"1.0\">" +
                                bookmark("file:///a%20b.txt", "2026-11-22T06:14:12.890359Z") +
                                bookmark("https://a.example/", "2026-11-22T06:14:13Z") +
                                bookmark("file:///%C3%A4.txt", "2026-11-22T06:14:14Z");
        QCOMPARE(recentFiles(list + "</xbel>"), (QStringList{u"/ä.txt"_s, u"/a b.txt"_s}));
        QCOMPARE(recentFiles(list + "<bookmark href=\"file:///c"), (QStringList{u"/ä.txt"_s, u"/a b.txt"_s}));
        QCOMPARE(recentFiles("no list"), QStringList());
    }

    void findsWhatAProcessHasOpen() {
        const QTemporaryDir folder;
        const QString home = folder.path() + u"/real"_s;
        const QString link = folder.path() + u"/linked"_s; // as the user comes to it
        QVERIFY(QDir().mkpath(home) && QFile::link(home, link));
        const auto path = [&](const QString& name) { return home + u'/' + name; };
        for (const char* name : {"held.pdf", "titled.txt", "grown.txt", "closed.txt", ".hidden/own.txt", "gone.pdf"})
            putFile(path(QString::fromLatin1(name)), "text");
        QByteArray list;
        for (const char* name : {"/titled.txt", "/lost.txt", "/held.pdf"})
            list += "<bookmark href=\"file://" + link.toUtf8() + name + "\"/>";
        putFile(path(u".local/recent.xbel"_s), "<xbel>" + list + "</xbel>");
        QFile held(path(u"held.pdf"_s)), again(path(u"held.pdf"_s)), grown(path(u"grown.txt"_s)),
            own(path(u".hidden/own.txt"_s)), gone(path(u"gone.pdf"_s));
        QVERIFY(held.open(QIODevice::ReadOnly) && again.open(QIODevice::ReadWrite) && own.open(QIODevice::ReadOnly) &&
                grown.open(QIODevice::Append) && gone.open(QIODevice::ReadOnly));
        gone.remove(); // its descriptor stays open

        DesktopDocuments documents(link, path(u".local/recent.xbel"_s));
        const DocumentOwner self{.bundleID = u"self"_s,
                                 .pids = {QCoreApplication::applicationPid()},
                                 .titles = {u"titled.txt - Editor"_s, u"lost.txt - Editor"_s, u"held.pdf"_s}};
        const DocumentOwner ended{.bundleID = u"ended"_s, .pids = {999'999'999}};
        std::optional<QList<OpenDocument>> found;
        const Handle question = documents.find({ended, self}, [&](const auto& answer) { found = answer; });
        QVERIFY(!found);
        QTRY_VERIFY(found);
        QCOMPARE(*found, (QList<OpenDocument>{{u"self"_s, QUrl::fromLocalFile(path(u"held.pdf"_s))},
                                              {u"self"_s, QUrl::fromLocalFile(link + u"/titled.txt"_s)}}));

        const QList<QUrl> files{QUrl::fromLocalFile(path(u"held.pdf"_s)), QUrl::fromLocalFile(path(u"gone.pdf"_s))};
        std::optional<QList<QUrl>> missing;
        const Handle look = documents.findGone(files, [&](const auto& answer) { missing = answer; });
        QTRY_VERIFY(missing);
        QCOMPARE(*missing, QList<QUrl>{files.last()});
    }

    void knowsWhatAProgramWasStartedWith() {
        const QTemporaryDir folder;
        putFile(folder.filePath(u"a b.txt"_s), "text");
        putFile(folder.filePath(u"c.txt"_s), "text");
        QProcess program;
        program.setWorkingDirectory(folder.path());
        program.start(u"sh"_s, {u"-c"_s, u"echo; read line"_s, u"a b.txt"_s, u"--option"_s,
                                QUrl::fromLocalFile(folder.filePath(u"c.txt"_s)).toString(), u"lost.txt"_s});
        QVERIFY(program.waitForReadyRead());
        QCOMPARE(openFiles::startedWith(program.processId()),
                 (QStringList{folder.filePath(u"a b.txt"_s), folder.filePath(u"c.txt"_s)}));
        program.closeWriteChannel();
        QVERIFY(program.waitForFinished());
    }
};

QTEST_GUILESS_MAIN(DesktopDocumentsTest)
#include "tst_DesktopDocuments.moc"
