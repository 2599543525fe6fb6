#pragma once

#include "Ports/CalendarStore.h"

#include <QUrl>

#include <optional>

namespace fendrel {

/// Whether a host belongs to a service for video calls. Companies have hosts of their own below those of some services.
bool isCall(const QString& host);

/// The first link to a video call: in the event's address, then its location, then its notes, which may be HTML.
std::optional<QUrl> joinURL(const CalendarEvent& event);

} // namespace fendrel
