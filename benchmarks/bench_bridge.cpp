// How long a browser waits for the bridge's answer, and whether a burst of reports keeps the interface from its frames.
// The floor is a bare loop that polls, parses and answers. Servers and browser are processes of their own. Prints JSON:
// microseconds for each trip, milliseconds between the turns of a timer.

#include "App/ControllerWorld.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTimer>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

constexpr int blocks = 40; // the servers take turns: what else the machine does meets both
constexpr int tripsInBlock = 500;
constexpr int burst = 100'000;
constexpr int runLength = 7; // reports of one tab in a row, of which the last must be told
constexpr int turn = 4;      // milliseconds of the timer that stands for the interface

void require(bool isDone, const char* what) {
    if (!isDone)
        throw std::runtime_error(what);
}

sockaddr_un addressOf(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    return address;
}

std::string report(int tab, int number) {
    return R"({"type":"tab","tabId":)" + std::to_string(tab) +
           R"(,"url":"https://social.example/a/page/of/it?with=some&more=text","title":"What somebody said )" +
           std::to_string(number) + "\"}\n";
}

/// The browser's end.
class Peer {
public:
    explicit Peer(const std::string& path) {
        const sockaddr_un address = addressOf(path);
        for (int attempt = 0; attempt < 1000 && !m_socket; ++attempt) {
            FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
            if (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0)
                m_socket = std::move(socket);
            else
                ::usleep(10'000);
        }
        require(bool(m_socket), "a server does not listen");
    }
    void say(std::string_view bytes) const {
        while (!bytes.empty()) {
            const auto count = ::send(m_socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
            require(count > 0, "a server ended");
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    std::string line() const {
        std::string text;
        std::array<char, 4096> piece{};
        while (!text.ends_with('\n')) {
            const auto count = ::recv(m_socket.get(), piece.data(), piece.size(), 0);
            require(count > 0, "a server ended");
            text.append(piece.data(), static_cast<std::size_t>(count));
        }
        return text;
    }
    std::vector<double> trips() const {
        const std::string message = report(1234567, 1);
        std::vector<double> took;
        for (int trip = 0; trip < tripsInBlock; ++trip) {
            const auto begun = std::chrono::steady_clock::now();
            say(message);
            line();
            took.push_back(std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begun).count());
        }
        return took;
    }

private:
    FileDescriptor m_socket;
};

int serveBare(const std::string& path) {
    const sockaddr_un address = addressOf(path);
    const FileDescriptor listener(::socket(AF_UNIX, SOCK_STREAM, 0));
    require(::bind(listener.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0, "no socket");
    ::listen(listener.get(), 1);
    const FileDescriptor peer(::accept(listener.get(), nullptr, nullptr));
    std::array<char, 65'536> piece{};
    pollfd waiting{.fd = peer.get(), .events = POLLIN, .revents = 0};
    while (::poll(&waiting, 1, -1) > 0) {
        const auto count = ::recv(peer.get(), piece.data(), piece.size(), 0);
        if (count <= 0)
            return 0;
        const QJsonObject message =
            QJsonDocument::fromJson(QByteArray(piece.data(), static_cast<qsizetype>(count))).object();
        const QByteArray answer = QJsonDocument(QJsonObject{{u"type"_s, u"unveil"_s}, {u"tabId"_s, message[u"tabId"]}})
                                      .toJson(QJsonDocument::Compact) +
                                  '\n';
        ::send(peer.get(), answer.constData(), static_cast<std::size_t>(answer.size()), MSG_NOSIGNAL);
    }
    return 0;
}

int serveBridge(const QString& folder, int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    FakeApplications applications;
    BrowserBridge bridge(applications, [](int) { return true; });
    bridge.onTab = [&](const BrowserTab& tab) { bridge.unveil(tab.key()); };
    bridge.listen(folder);
    return QCoreApplication::exec();
}

/// The whole application over fakes, with a timer that wants its turn as the interface does. Its answer to the end of
/// the burst is what it saw.
int serveApplication(const QString& folder, int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    ControllerWorld world;
    world.fake.platform.folders.data = folder;
    BrowserBridge& bridge = world.launch().bridge();
    world.controller->engine().addSite(u"social.example"_s, u"social"_s);
    world.controller->focus().start();
    int ends = 0;
    const auto onTab = bridge.onTab;
    bridge.onTab = [&](const BrowserTab& tab) {
        onTab(tab);
        const int number = tab.title.section(u' ', -1).toInt();
        ends += number % runLength == runLength - 1 || number == burst - 1 ? 1 : 0;
    };
    QElapsedTimer sinceTurn;
    qint64 longest = 0;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout,
                     [&] { longest = qMax(longest, sinceTurn.nsecsElapsed()), sinceTurn.start(); });
    bridge.onAsk = [&](BrowserID browser, TabID tab) {
        if (tab == TabID(0)) {
            sinceTurn.start();
            timer.start(turn);
            return;
        }
        longest = qMax(longest, sinceTurn.nsecsElapsed());
        bridge.send({{u"longest"_s, static_cast<double>(longest) / 1e6}, {u"ends"_s, ends}}, browser);
    };
    bridge.listen(folder);
    return QCoreApplication::exec();
}

template<class Serve>
pid_t start(Serve serve) {
    const pid_t pid = ::fork();
    if (pid == 0)
        ::_exit(serve());
    return pid;
}

QJsonArray array(const std::vector<double>& values) {
    QJsonArray list;
    for (const double value : values)
        list.append(value);
    return list;
}

QJsonObject sendBurst(const std::string& path) {
    const Peer peer(path);
    peer.say("{\"type\":\"ask\",\"tabId\":0}\n");
    for (int number = 0; number < burst; ++number)
        peer.say(report(number / runLength % 10, number));
    peer.say("{\"type\":\"ask\",\"tabId\":1}\n");
    // Veils come before it.
    std::string text = peer.line();
    while (text.find("\"longest\"") == std::string::npos)
        text = peer.line();
    text.pop_back();
    const auto last = text.rfind('\n') + 1;
    QJsonObject seen = QJsonDocument::fromJson(QByteArray::fromStdString(text.substr(last))).object();
    seen.insert(u"lost"_s, (burst + runLength - 1) / runLength - seen[u"ends"].toInt());
    return seen;
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    const QString bridge = home.filePath(u"bridge"_s), application = home.filePath(u"application"_s);
    const std::string bare = home.filePath(u"bare.sock"_s).toStdString();
    const std::array servers{start([&] { return serveBare(bare); }),
                             start([&] { return serveBridge(bridge, argc, argv); }),
                             start([&] { return serveApplication(application, argc, argv); })};
    int status = 0;
    try {
        const auto socket = [](const QString& folder) { return (folder + u"/bridge.sock"_s).toStdString(); };
        const Peer toBare(bare), toBridge(socket(bridge));
        std::vector<double> ours, floor;
        for (int block = 0; block < blocks; ++block) {
            const auto our = toBridge.trips(), their = toBare.trips();
            ours.insert(ours.end(), our.begin(), our.end());
            floor.insert(floor.end(), their.begin(), their.end());
        }
        const QJsonObject answer{
            {u"bridge"_s, array(ours)}, {u"floor"_s, array(floor)}, {u"burst"_s, sendBurst(socket(application))}};
        std::puts(QJsonDocument(answer).toJson(QJsonDocument::Compact).constData());
    } catch (const std::runtime_error& trouble) {
        std::fprintf(stderr, "bench_bridge: %s\n", trouble.what());
        status = 1;
    }
    for (const pid_t server : servers) {
        ::kill(server, SIGKILL);
        ::waitpid(server, nullptr, 0);
    }
    return status;
}
