#include "Relay/ApplicationSocket.h"

#include "Base/BridgeProtocol.h"

#include <fcntl.h>

#include <algorithm>
#include <iterator>

namespace fendrel::relay {

std::string socketPath(const char* dataHome, const char* home) {
    std::string path;
    if (dataHome && *dataHome == '/')
        path = dataHome;
    else if (home && *home == '/')
        path = std::string(home) + "/.local/share";
    else
        return {};
    return path.append("/").append(bridge::dataFolder).append("/").append(bridge::socketFile);
}

std::optional<sockaddr_un> socketAddress(const std::string& path) {
    sockaddr_un address{};
    if (path.empty() || path.size() >= std::size(address.sun_path))
        return {};
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), std::begin(address.sun_path));
    return address;
}

FileDescriptor dial(const sockaddr_un& address) {
    FileDescriptor connection(socket(AF_UNIX, SOCK_STREAM, 0));
    // A local connection is made at once or not at all: one under way would be a listener whose queue is full.
    if (!connection || fcntl(connection.get(), F_SETFL, O_NONBLOCK) < 0 ||
        connect(connection.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) < 0)
        return {};
    return connection;
}

} // namespace fendrel::relay
