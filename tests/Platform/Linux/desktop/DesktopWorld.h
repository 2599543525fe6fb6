#pragma once

#include "Platform/Linux/X11/X11Accessibility.h"
#include "Platform/Linux/X11/X11Applications.h"
#include "Platform/Linux/X11/X11Displays.h"
#include "Platform/Shared/SystemClock.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace fendrel {

/// The adapters on the real display, with desktop entries of the test's own.
struct DesktopWorld {
    explicit DesktopWorld(const QStringList& entryFolders)
        : catalog(std::make_shared<ApplicationCatalog>(entryFolders, DesktopEntryContext{},
                                                       ApplicationIdentity::builtIn(), clock)) {
        applications.onActivated = [this](const std::optional<RunningApp>& app) { fronts.append(app ? app->pid : 0); };
        applications.onRunningChanged = [this] { ++runningChanges; };
    }

    std::optional<RunningApp> running(qint64 pid) const {
        for (const RunningApp& app : applications.running()) {
            if (app.pid == pid)
                return app;
        }
        return {};
    }
    qint64 front() const {
        const auto app = applications.frontmost();
        return app ? app->pid : 0;
    }
    QStringList titles(qint64 pid) const {
        QStringList titles;
        for (const WindowInfo& window : accessibility.windows(pid))
            titles.append(window.title);
        titles.sort();
        return titles;
    }
    bool isHidden(qint64 pid) const {
        const auto all = accessibility.windows(pid);
        return std::ranges::any_of(all, &WindowInfo::isHidden);
    }
    bool isMinimized(qint64 pid) const {
        const auto all = accessibility.windows(pid);
        return !all.isEmpty() && std::ranges::all_of(all, &WindowInfo::isMinimized);
    }

    SystemClock clock;
    std::shared_ptr<X11Connection> connection = X11Connection::open(clock);
    std::shared_ptr<X11Windows> windows = std::make_shared<X11Windows>(connection, clock);
    std::shared_ptr<X11Monitors> monitors = std::make_shared<X11Monitors>(connection);
    std::shared_ptr<ApplicationCatalog> catalog;
    std::shared_ptr<ApplicationGroups> groups = std::make_shared<ApplicationGroups>(windows, catalog, clock);
    std::shared_ptr<DesktopSettings> settings = std::make_shared<DesktopSettings>(connection);
    X11Applications applications{groups, settings, clock};
    X11Accessibility accessibility{groups, clock};
    X11Displays displays{monitors, windows};

    QList<qint64> fronts; ///< what came to the front, one after the other; 0 for nothing
    int runningChanges = 0;
};

/// A running window_program. It ends with this object.
class WindowProgram {
public:
    explicit WindowProgram(const QString& title) {
        m_process.start(QStringLiteral(WINDOW_PROGRAM), {title});
        m_isReady = m_process.waitForReadyRead(10'000);
    }
    ~WindowProgram() {
        ::kill(static_cast<pid_t>(pid()), SIGCONT);
        m_process.kill();
        m_process.waitForFinished();
    }

    qint64 pid() const { return m_process.processId(); }
    void signal(int number) const { ::kill(static_cast<pid_t>(pid()), number); }

    void send(const QString& command) { m_process.write(command.toUtf8() + '\n'); }

    /// Waits until the server has heard of it. False when the program does not answer.
    bool tell(const QString& command) {
        m_process.readAllStandardOutput();
        send(command);
        return m_isReady && m_process.waitForReadyRead(10'000);
    }

private:
    QProcess m_process;
    bool m_isReady = false;
};

} // namespace fendrel
