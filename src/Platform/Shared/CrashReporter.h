#pragma once

#include <QString>

#include <array>
#include <csignal>
#include <vector>

namespace fendrel {

/// While it lives, a crash (SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT) leaves a report in a folder and then
/// takes its ordinary course, core dump included. A report is named "Fendrel-<UTC time>-<pid>.ips", is readable
/// by its owner only and holds the version, the system, the signal and the crashed thread's stack: nothing that
/// the user typed or looked at, no arguments and no environment. At most one object at a time. Main thread; a
/// stack overflow is reported on the thread that made this only. Does nothing in a build with sanitizers: their
/// own reports say more.
class CrashReporter {
public:
    /// Makes the folder, owner-only, and keeps its newest `kept` reports.
    explicit CrashReporter(const QString& folder);
    ~CrashReporter();
    CrashReporter(const CrashReporter&) = delete;
    CrashReporter& operator=(const CrashReporter&) = delete;

    static constexpr int kept = 10;

private:
    static constexpr std::array caught{SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

    std::vector<std::byte> m_stack; ///< for the handler: the ordinary one may be what overflowed
    std::array<struct sigaction, caught.size()> m_previous{};
};

} // namespace fendrel
