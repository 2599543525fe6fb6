#pragma once

#include "Platform/Linux/Notifications/NotificationMessage.h"

#include <optional>

struct sd_bus_message;

namespace fendrel {

/// What a message on the bus says of notifications; nothing when it is about something else, or malformed.
/// Reads on from where the message stands.
std::optional<NotificationMessage> decodeNotification(sd_bus_message* message);

} // namespace fendrel
