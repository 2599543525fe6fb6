#include "Base/LineServer.h"
#include "Files.h"
#include "Table.h"

#include <QLocalSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

constexpr int deadline = 20'000; // milliseconds

struct Served {
    QTemporaryDir home;
    QString path = home.filePath(u"data/a.sock"_s);
    bool isAllowed = true;
    LineServer server{[this](int) { return isAllowed; }};
    QList<QByteArray> lines;
    int gone = 0;

    Served() {
        server.onLines = [this](int, const QList<QByteArray>& more) { lines += more; };
        server.onGone = [this](int) { ++gone; };
    }
};

bool isConnected(QLocalSocket& socket, const QString& path) {
    socket.connectToServer(path);
    return socket.waitForConnected(deadline);
}

using Before = std::function<void(const QString& path)>;

} // namespace

class LineServerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void takesThePlaceOfWhatIsLeftOver_data() {
        const Table<Before> row("before");
        row("nothing", [](const QString&) {});
        row("a file", [](const QString& path) { putFile(path, "x"); });
        row("an open folder", [](const QString& path) {
            putFile(path, {});
            QFile::setPermissions(QFileInfo(path).path(), QFile::Permissions(0x7777));
        });
        row("a dead socket", [](const QString& path) {
            QDir().mkpath(QFileInfo(path).path());
            const QString elsewhere = path + u'2';
            LineServer dead([](int) { return true; });
            QCOMPARE(dead.listen(elsewhere), QString());
            QVERIFY(QFile::rename(elsewhere, path)); // it does not take away what is not at its path any more
        });
    }

    void takesThePlaceOfWhatIsLeftOver() {
        QFETCH(const Before, before);
        Served served;
        before(served.path);
        QCOMPARE(served.server.listen(served.path), QString());
        QCOMPARE(permissionsOf(served.path) & 0077U, 0U);
        QCOMPARE(permissionsOf(QFileInfo(served.path).path()), 0700U);
        QLocalSocket peer;
        QVERIFY(isConnected(peer, served.path));
        peer.write("one\ntw");
        QTRY_COMPARE(served.lines, QList<QByteArray>{"one"});
        peer.write("o\n\n");
        QTRY_COMPARE(served.lines, (QList<QByteArray>{"one", "two", ""}));
        peer.abort();
        QTRY_COMPARE(served.gone, 1);
    }

    void neverStealsALiveSocket() {
        Served first;
        QCOMPARE(first.server.listen(first.path), QString());
        std::optional<LineServer> second;
        second.emplace([](int) { return true; });
        QCOMPARE(second->listen(first.path), u"another program listens there"_s);
        second.reset();
        QLocalSocket peer;
        QVERIFY(isConnected(peer, first.path));
        peer.write("still here\n");
        QTRY_COMPARE(first.lines, QList<QByteArray>{"still here"});
    }

    void leavesTheFileOfItsSuccessor() {
        Served served;
        {
            LineServer old([](int) { return true; });
            QCOMPARE(old.listen(served.path), QString());
            QVERIFY(QFile::remove(served.path));
            QCOMPARE(served.server.listen(served.path), QString());
        }
        QLocalSocket peer;
        QVERIFY(isConnected(peer, served.path));
    }

    void saysWhyItCannotListen() {
        Served served;
        const QString tooLong = served.home.filePath(QString(120, u'x'));
        QCOMPARE(served.server.listen(tooLong),
                 u"the path is longer than the 107 bytes that a socket's path may have"_s);
        putFile(served.home.filePath(u"file"_s), {});
        QCOMPARE(served.server.listen(served.home.filePath(u"file/a.sock"_s)), u"the folder cannot be made"_s);
        QVERIFY(QDir().mkpath(served.path)); // a folder is in the way
        QCOMPARE(served.server.listen(served.path), u"Address already in use"_s);
    }

    void refusesOtherUsers() {
        Served served;
        served.isAllowed = false;
        QCOMPARE(served.server.listen(served.path), QString());
        QLocalSocket peer;
        QVERIFY(isConnected(peer, served.path));
        peer.write("let me in\n");
        QTRY_COMPARE(peer.state(), QLocalSocket::UnconnectedState);
        QVERIFY(served.lines.isEmpty());
    }
};

QTEST_GUILESS_MAIN(LineServerTest)
#include "tst_LineServer.moc"
