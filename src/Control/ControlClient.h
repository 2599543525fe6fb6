#pragma once

#include "Base/LineFramer.h"
#include "Control/Protocol.h"

#include <QJsonObject>

#include <functional>
#include <optional>

namespace fendrel::control {

/// The other end of the control socket, for programs without an event loop: every call blocks.
class ControlClient {
public:
    ControlClient() = default;
    ~ControlClient();
    ControlClient(const ControlClient&) = delete;
    ControlClient& operator=(const ControlClient&) = delete;

    /// False when no application listens there.
    bool connectTo(const QString& path);
    /// Sends a request and hands every answer to `take` until it returns false. False when the connection ended before.
    bool send(const Request& request, const std::function<bool(const QJsonObject&)>& take);

private:
    int m_socket = -1;
    LineFramer m_framer;
};

} // namespace fendrel::control
