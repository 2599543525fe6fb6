// The least that a relay can do: bytes from the standard input to a socket, and from there to the standard output, as
// they are. The socket's path is its argument.

#include "Base/FileDescriptor.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <array>
#include <cstddef>
#include <cstring>

namespace {

std::array<char, 65'536> piece;

bool forward(int from, int to) {
    const ssize_t count = read(from, piece.data(), piece.size());
    return count > 0 && write(to, piece.data(), static_cast<std::size_t>(count)) == count;
}

} // namespace

int main(int count, char** words) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (count == 2)
        std::strncpy(address.sun_path, words[1], sizeof address.sun_path - 1);
    const fendrel::FileDescriptor connection(socket(AF_UNIX, SOCK_STREAM, 0));
    if (connect(connection.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return 1;
    for (;;) {
        std::array<pollfd, 2> watched{{{STDIN_FILENO, POLLIN, 0}, {connection.get(), POLLIN, 0}}};
        if (poll(watched.data(), watched.size(), -1) < 0)
            return 1;
        if (watched[0].revents && !forward(STDIN_FILENO, connection.get()))
            return 0;
        if (watched[1].revents && !forward(connection.get(), STDOUT_FILENO))
            return 0;
    }
}
