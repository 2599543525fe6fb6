#pragma once

#include "Base/FileDescriptor.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <functional>
#include <utility>

namespace fendrel {

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into a call on the main thread. They
/// are caught rather than blocked or ignored, as children would inherit that. At most one object at a time.
class TerminationSignals {
public:
    TerminationSignals();
    ~TerminationSignals(); ///< puts back what was in force before
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

    /// Runs once, however many signals arrive: an impatient second one must not cut the orderly quit short.
    std::function<void()> onTermination = [] {};

private:
    explicit TerminationSignals(std::pair<FileDescriptor, FileDescriptor> pipe);

    static constexpr std::array caught{SIGTERM, SIGINT, SIGHUP};

    FileDescriptor m_readEnd;
    FileDescriptor m_writeEnd;
    QSocketNotifier m_notifier;
    std::array<struct sigaction, caught.size()> m_previous{};
};

} // namespace fendrel
