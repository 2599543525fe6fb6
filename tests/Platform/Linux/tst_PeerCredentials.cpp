#include "Base/FileDescriptor.h"
#include "Platform/Linux/PeerCredentials.h"

#include <QtTest>

#include <sys/socket.h>
#include <sys/wait.h>

#include <array>

using namespace fendrel;

class PeerCredentialsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void knowsWhoseAPeerIs() {
        std::array<int, 2> ends{};
        QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
        const FileDescriptor one(ends[0]), other(ends[1]);
        QVERIFY(isPeerOwnUser(one.get()));
        QVERIFY(!isPeerOwnUser(-1));
        if (::getuid() != 0)
            QSKIP("only root can be somebody else for a moment");
        const pid_t child = ::fork();
        if (child == 0) // the peer was made by root
            ::_exit(::setuid(65534) == 0 && !isPeerOwnUser(one.get()) ? 0 : 1);
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
    }
};

QTEST_APPLESS_MAIN(PeerCredentialsTest)
#include "tst_PeerCredentials.moc"
