// What the relay costs a browser: from its start until it is connected, its memory, and how much longer a message is on
// its way. The floor forwards bare bytes, the peer is another program's relay between browsers and a socket. This
// program is both the browser and the application. Prints JSON: microseconds for each sample, KiB.

#include "Base/FileDescriptor.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

using Microseconds = std::chrono::duration<double, std::micro>;
using SteadyClock = std::chrono::steady_clock;

constexpr int starts = 100;
constexpr int peerTrips = 40; // it takes a tenth of a second for each
// The programs take turns: what else the machine does meets them all.
constexpr int blocks = 1000;
constexpr int tripsInBlock = 20;

const QByteArray report =
    R"({"type":"tab","tabId":1234567,"url":"https://social.example/a/page/of/it?with=some&more=text",)"
    R"("title":"What somebody said about something else, and what others answered"})";
const QByteArray answer =
    R"({"type":"veil","tabId":1234567,"site":"social.example","mode":"Social","color":"#ff2d55"})";

void require(bool isDone, const char* what) {
    if (!isDone)
        throw std::runtime_error(what);
}

QByteArray native(const QByteArray& text) {
    const auto length = static_cast<quint32>(text.size());
    return QByteArray(reinterpret_cast<const char*>(&length), sizeof length) + text;
}

void put(int descriptor, const QByteArray& bytes) {
    require(write(descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size())) == bytes.size(),
            "cannot write");
}

QByteArray take(int descriptor, qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype have = 0; have < size;) {
        const auto count = read(descriptor, bytes.data() + have, static_cast<std::size_t>(size - have));
        require(count > 0, "the relay has ended");
        have += count;
    }
    return bytes;
}

/// A program between a browser and a socket, and what it makes of messages.
struct Program {
    QString name;
    QList<QByteArray> command;
    QByteArray environment; ///< one variable
    QString socket;
    QByteArray reportOnSocket;
    QByteArray answerOnSocket;
};

/// The program while it runs and is connected.
class Running {
public:
    Running(const Program& program, int listener) : m_program(program) {
        std::array<int, 2> in{}, out{};
        require(pipe2(in.data(), O_CLOEXEC) == 0 && pipe2(out.data(), O_CLOEXEC) == 0, "no pipes");
        m_in = FileDescriptor(in[1]);
        m_out = FileDescriptor(out[0]);
        const FileDescriptor theirIn(in[0]), theirOut(out[1]);
        std::vector<char*> words, variables;
        for (const QByteArray& word : program.command)
            words.push_back(const_cast<char*>(word.constData())); // NOLINT(cppcoreguidelines-pro-type-const-cast)
        words.push_back(nullptr);
        variables.push_back(
            const_cast<char*>(program.environment.constData())); // NOLINT(cppcoreguidelines-pro-type-const-cast)
        variables.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, theirIn.get(), STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, theirOut.get(), STDOUT_FILENO);
        const auto begun = SteadyClock::now();
        const int error = posix_spawnp(&m_pid, words[0], &actions, nullptr, words.data(), variables.data());
        posix_spawn_file_actions_destroy(&actions);
        require(error == 0, "a program cannot be started");
        m_connection = FileDescriptor(accept(listener, nullptr, nullptr));
        m_startTook = SteadyClock::now() - begun;
    }
    ~Running() {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    Microseconds startTook() const { return m_startTook; }

    /// What is said once, before messages are passed: the greeting, and what follows from its answer.
    void greet(const QByteArray& onSocket, const QByteArray& answerToIt, const QByteArray& toBrowser) {
        require(take(m_connection.get(), onSocket.size()).startsWith(onSocket.first(10)), "another greeting");
        put(m_connection.get(), answerToIt + '\n');
        const QByteArray all = toBrowser + native(answerToIt);
        require(take(m_out.get(), all.size()) == all, "another greeting");
    }

    Microseconds trip() {
        static const QByteArray reportOfBrowser = native(report), answerToBrowser = native(answer);
        const auto begun = SteadyClock::now();
        put(m_in.get(), reportOfBrowser);
        const QByteArray arrived = take(m_connection.get(), m_program.reportOnSocket.size());
        put(m_connection.get(), m_program.answerOnSocket);
        const QByteArray answered = take(m_out.get(), answerToBrowser.size());
        const Microseconds took = SteadyClock::now() - begun;
        require(arrived == m_program.reportOnSocket && answered == answerToBrowser, "a message was changed");
        return took;
    }

    /// KiB: the most of it that was in memory at one time.
    int memory() const {
        QFile status(u"/proc/%1/status"_s.arg(m_pid));
        require(status.open(QIODevice::ReadOnly), "no process");
        const QByteArray text = status.readAll();
        const qsizetype start = text.indexOf("VmHWM:") + 6;
        return text.sliced(start, text.indexOf("kB", start) - start).trimmed().toInt();
    }

private:
    const Program& m_program;
    FileDescriptor m_in, m_out, m_connection;
    pid_t m_pid = 0;
    Microseconds m_startTook{};
};

FileDescriptor listenAt(const QString& path) {
    QDir().mkpath(QFileInfo(path).path());
    FileDescriptor listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path - 1);
    require(bind(listener.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                listen(listener.get(), 8) == 0,
            "no socket");
    return listener;
}

QJsonObject measureAll() {
    const QTemporaryDir folder;
    const QString home = folder.path();
    const QByteArray path = QFile::encodeName(home);
    const std::array<Program, 3> programs{{
        {.name = u"relay"_s,
         .command = {RELAY},
         .environment = "XDG_DATA_HOME=" + path,
         .socket = home + u"/Fendrel/bridge.sock"_s,
         .reportOnSocket = report + '\n',
         .answerOnSocket = answer + '\n'},
        {.name = u"forwarder"_s,
         .command = {FORWARDER, path + "/bare"},
         .environment = "HOME=" + path,
         .socket = home + u"/bare"_s,
         .reportOnSocket = native(report),
         .answerOnSocket = native(answer)},
        {.name = u"peer"_s,
         .command = {"keepassxc-proxy"},
         .environment = "XDG_RUNTIME_DIR=" + path,
         .socket = home + u"/app/org.keepassxc.KeePassXC/org.keepassxc.KeePassXC.BrowserServer"_s,
         .reportOnSocket = report,
         .answerOnSocket = answer},
    }};
    std::array<FileDescriptor, 3> listeners;
    std::array<QJsonArray, 3> startTimes, trips;
    for (std::size_t index = 0; index < programs.size(); ++index)
        listeners[index] = listenAt(programs[index].socket);
    for (int round = 0; round < starts; ++round) {
        for (std::size_t index = 0; index < programs.size(); ++index)
            startTimes[index].append(Running(programs[index], listeners[index].get()).startTook().count());
    }

    std::array<std::unique_ptr<Running>, 3> running;
    for (std::size_t index = 0; index < programs.size(); ++index)
        running[index] = std::make_unique<Running>(programs[index], listeners[index].get());
    running[0]->greet(R"({"type":"hello","pids":[)" + QByteArray::number(getpid()) + "]}\n", R"({"type":"state"})",
                      native(R"({"type":"connected"})"));
    const auto travel = [&](std::size_t index, int count) {
        for (int trip = 0; trip < count; ++trip)
            trips[index].append(running[index]->trip().count());
    };
    for (int block = 0; block < blocks; ++block) {
        travel(0, tripsInBlock);
        travel(1, tripsInBlock);
        travel(2, block % (blocks / peerTrips) == 0 ? 1 : 0);
    }
    QJsonObject results;
    for (std::size_t index = 0; index < programs.size(); ++index)
        results[programs[index].name] = QJsonObject{
            {u"starts"_s, startTimes[index]}, {u"trips"_s, trips[index]}, {u"memory"_s, running[index]->memory()}};
    return results;
}

} // namespace

int main() {
    try {
        std::puts(QJsonDocument(measureAll()).toJson(QJsonDocument::Compact).constData());
        return 0;
    } catch (const std::runtime_error& trouble) {
        std::fprintf(stderr, "bench_relay: %s\n", trouble.what());
        return 1;
    }
}
