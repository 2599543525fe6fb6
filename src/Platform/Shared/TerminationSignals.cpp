#include "Platform/Shared/TerminationSignals.h"

#include "Base/Log.h"

#include <fcntl.h>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

namespace fendrel {

namespace {

std::atomic<int> signalPipe = -1; // a signal handler can reach nothing else
static_assert(std::atomic<int>::is_always_lock_free);

void onSignal(int) {
    const int error = errno;
    const char byte = 0;
    // A full pipe loses nothing: the main thread has a signal to read then.
    [[maybe_unused]] const auto written = write(signalPipe.load(), &byte, 1);
    errno = error;
}

std::pair<FileDescriptor, FileDescriptor> makePipe() {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe to be had from the kernel: %s", std::strerror(errno));
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

} // namespace

TerminationSignals::TerminationSignals() : TerminationSignals(makePipe()) {}

TerminationSignals::TerminationSignals(std::pair<FileDescriptor, FileDescriptor> pipe)
    : m_readEnd(std::move(pipe.first)),
      m_writeEnd(std::move(pipe.second)),
      m_notifier(m_readEnd.get(), QSocketNotifier::Read) {
    signalPipe = m_writeEnd.get();
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] {
        m_notifier.setEnabled(false);
        onTermination();
    });

    struct sigaction action {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    sigset_t signals;
    sigemptyset(&signals);
    for (std::size_t index = 0; index < caught.size(); ++index) {
        sigaction(caught[index], &action, &m_previous[index]);
        sigaddset(&signals, caught[index]);
    }
    // Whoever started the program may have left them blocked.
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

TerminationSignals::~TerminationSignals() {
    for (std::size_t index = 0; index < caught.size(); ++index)
        sigaction(caught[index], &m_previous[index], nullptr);
    signalPipe = -1;
}

} // namespace fendrel
