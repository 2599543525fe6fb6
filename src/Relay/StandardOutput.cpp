#include "Relay/StandardOutput.h"

#include <fcntl.h>

namespace fendrel::relay {

namespace {

constexpr int firstPrivate = STDERR_FILENO + 1; // where no library takes it for one of the standard streams

} // namespace

FileDescriptor takeStandardOutput() {
    FileDescriptor output(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, firstPrivate));
    if (output && dup2(STDERR_FILENO, STDOUT_FILENO) < 0) {
        // Without a standard error nobody wants to read it.
        const FileDescriptor nowhere(open("/dev/null", O_WRONLY | O_CLOEXEC));
        dup2(nowhere.get(), STDOUT_FILENO);
    }
    return output;
}

} // namespace fendrel::relay
