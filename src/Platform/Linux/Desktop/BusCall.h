#pragma once

#include "Base/Handle.h"

#include <QDBusMessage>
#include <QDeadlineTimer>

#include <functional>
#include <optional>

namespace fendrel {

/// Nothing: an answer is not waited for and comes later. A deadline: it comes before the call that asks for it returns.
using WaitUntil = std::optional<QDeadlineTimer>;

/// Sends a message on the session bus. `done` gets the reply, or the error that came instead.
Handle callOnBus(const QDBusMessage& message, const WaitUntil& deadline,
                 std::function<void(const QDBusMessage& reply)> done);

} // namespace fendrel
