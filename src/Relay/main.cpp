#include "Relay/ApplicationSocket.h"
#include "Relay/Relay.h"
#include "Relay/StandardOutput.h"

#include <fcntl.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

using namespace fendrel;
using namespace fendrel::relay;

int main() {
    std::signal(SIGPIPE, SIG_IGN);
    FileDescriptor toBrowser = takeStandardOutput();
    if (!toBrowser || isatty(STDIN_FILENO)) {
        std::fputs("fendrel-bridge: browsers start this, and talk to it on its standard input and output\n", stderr);
        return 1;
    }
    fcntl(toBrowser.get(), F_SETFL, fcntl(toBrowser.get(), F_GETFL) | O_NONBLOCK);
    const std::string path = socketPath(std::getenv("XDG_DATA_HOME"), std::getenv("HOME"));
    const auto application = socketAddress(path);
    if (!application)
        std::fprintf(stderr, "fendrel-bridge: Fendrel cannot be reached: no socket can be at '%s'\n", path.c_str());
    return Relay(std::move(toBrowser), application, getppid()).run();
}
