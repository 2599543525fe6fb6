// How long it takes from a request to the X server until Fendrel's services know what is in front: a window's
// new title, and another window. The services are the real ones on the real adapters, only without views. The
// floor is a client that waits for nothing but the event. Wants a display of its own. Prints JSON: microseconds
// for each sample, processor time for one, and how often the process woke while nothing changed.

#include "App/Workspace.h"
#include "BareClient.h"
#include "Focus/WindowTitles.h"
#include "Platform/MakePlatform.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <sys/resource.h>

#include <cstdio>
#include <thread>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Microseconds = std::chrono::duration<double, std::micro>;
using Moment = std::chrono::steady_clock::time_point;

constexpr int samples = 400;
constexpr auto rest = 10ms; // between two samples: by then all is done that a change brings with it
constexpr auto stillness = 5s;

Moment now() {
    return std::chrono::steady_clock::now();
}

rusage usage() {
    rusage now{};
    getrusage(RUSAGE_SELF, &now);
    return now;
}

Microseconds processorTime(const rusage& usage) {
    const auto duration = [](const timeval& time) {
        return Microseconds(std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec));
    };
    return duration(usage.ru_utime) + duration(usage.ru_stime);
}

/// `change` starts what is measured, `wait` returns when it was noticed; both get the sample's number.
template<class Change, class Wait, class Rest>
QJsonObject measure(const Change& change, const Wait& wait, const Rest& restFor) {
    QJsonArray latencies;
    const Microseconds before = processorTime(usage());
    for (int sample = 0; sample < samples; ++sample) {
        const Moment start = now();
        change(sample);
        latencies.append(Microseconds(wait(sample) - start).count());
        restFor(rest);
    }
    return {{u"latencies"_s, latencies}, {u"processor"_s, (processorTime(usage()) - before).count() / samples}};
}

/// A running window_program with a window of its own application.
class Program {
public:
    explicit Program(const QByteArray& windowClass) {
        m_process.start(QStringLiteral(WINDOW_PROGRAM), {QString::fromUtf8(windowClass)});
        m_process.write("class " + windowClass + ' ' + windowClass + '\n');
    }
    ~Program() {
        m_process.kill();
        m_process.waitForFinished();
    }
    qint64 pid() const { return m_process.processId(); }

private:
    QProcess m_process;
};

/// What knows the front, joined as in the application.
class Services {
public:
    Services() {
        m_platform.applications->onActivated = [this](const std::optional<RunningApp>& app) {
            m_workspace.refreshRunning();
            m_titles.track(app);
        };
    }

    template<class Holds>
    Moment waitForFront(const Holds& holds) {
        QEventLoop loop;
        Moment noticed = now();
        const auto look = [&] {
            const auto& front = m_titles.front();
            if (!front || !holds(*front))
                return false;
            noticed = now();
            loop.quit();
            return true;
        };
        QObject::connect(&m_titles, &WindowTitles::changed, &loop, look);
        if (!look())
            loop.exec();
        return noticed;
    }

    void rest(Clock::Duration duration) {
        QEventLoop loop;
        const Handle end = m_platform.clock->after(duration, [&] { loop.quit(); });
        loop.exec();
    }

    xcb_window_t window(qint64 pid) {
        waitForFront([&](const auto& front) { return front.pid == pid && !front.bundleID.isEmpty(); });
        return static_cast<xcb_window_t>(m_titles.window()->value);
    }

private:
    Platform m_platform = makePlatform();
    WindowTitles m_titles{*m_platform.accessibility};
    Workspace m_workspace{*m_platform.applications, *m_platform.accessibility, *m_platform.shell};
};

QJsonObject measureAll() {
    Services services;
    BareClient client;
    const Program first("code");
    const xcb_window_t firstWindow = services.window(first.pid());
    const Program second("discord");
    const xcb_window_t secondWindow = services.window(second.pid());
    client.listen(secondWindow);

    const auto text = [](int sample) { return "title " + std::to_string(sample); };
    const auto setTitle = [&](int sample) { client.setTitle(secondWindow, text(sample)); };
    const auto window = [&](int sample) { return sample % 2 == 0 ? firstWindow : secondWindow; };
    const auto activate = [&](int sample) { client.activate(window(sample)); };
    const auto serve = [&](Clock::Duration duration) { services.rest(duration); };
    const auto sleep = [](Clock::Duration duration) { std::this_thread::sleep_for(duration); };

    serve(1s);
    QJsonObject results;
    results[u"title"] = measure(
        setTitle,
        [&](int sample) {
            return services.waitForFront([expected = QString::fromStdString(text(sample))](const auto& front) {
                return front.title == expected;
            });
        },
        serve);
    results[u"activation"] = measure(
        activate,
        [&](int sample) {
            const qint64 expected = sample % 2 == 0 ? first.pid() : second.pid();
            return services.waitForFront([expected](const auto& front) { return front.pid == expected; });
        },
        serve);

    serve(1s);
    const rusage before = usage();
    serve(stillness);
    const long wakeUps = usage().ru_nvcsw - before.ru_nvcsw - 1; // the last one ends the measurement
    results[u"stillness"] = QJsonObject{{u"seconds"_s, std::chrono::duration<double>(stillness).count()},
                                        {u"wakeUps"_s, static_cast<qint64>(wakeUps)}};

    // What the client has not heard yet is of the samples before.
    client.skipPending();
    results[u"titleFloor"] = measure(
        setTitle, [&](int) { return client.waitForTitle(secondWindow), now(); }, sleep);
    results[u"activationFloor"] = measure(
        activate, [&](int sample) { return client.waitForActive(window(sample)), now(); }, sleep);
    return results;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto missing = missingRequirement()) {
        std::fprintf(stderr, "bench_front: %s\n", qUtf8Printable(*missing));
        return 1;
    }
    prepareToolkit();
    const QGuiApplication application(argc, argv);
    std::puts(QJsonDocument(measureAll()).toJson(QJsonDocument::Compact).constData());
    return 0;
}
