#pragma once

#include "Base/FileDescriptor.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <optional>
#include <string>

namespace fendrel::relay {

/// Where the application listens, from $XDG_DATA_HOME and $HOME, each null when it is not set. Empty when there is no
/// such place.
std::string socketPath(const char* dataHome, const char* home);

/// Nothing for a path that is too long for a socket, or empty.
std::optional<sockaddr_un> socketAddress(const std::string& path);

/// A connection that does not block, or none. Never waits.
FileDescriptor dial(const sockaddr_un& address);

} // namespace fendrel::relay
