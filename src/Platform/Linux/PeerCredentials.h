#pragma once

namespace fendrel {

/// Whether the process at the other end of a connected Unix socket is this user's.
bool isPeerOwnUser(int socket);

} // namespace fendrel
