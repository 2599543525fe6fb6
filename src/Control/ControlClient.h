#pragma once

#include "Base/LineFramer.h"
#include "Control/Protocol.h"

#include <QJsonObject>

#include <chrono>
#include <functional>
#include <optional>

namespace fendrel::control {

/// The other end of the control socket, for programs without an event loop: every call blocks.
class ControlClient {
public:
    static constexpr std::chrono::seconds patience{5};

    ControlClient() = default;
    ~ControlClient();
    ControlClient(const ControlClient&) = delete;
    ControlClient& operator=(const ControlClient&) = delete;

    /// False when no application listens there.
    bool connectTo(const QString& path);
    /// Sends a request and hands every answer to `take` until it returns false. False when the connection ended before,
    /// or the application takes longer than `patience` for its first answer.
    bool send(const Request& request, const std::function<bool(const QJsonObject&)>& take);

private:
    void setPatience(std::chrono::seconds time) const; ///< 0: without end

    int m_socket = -1;
    LineFramer m_framer;
};

} // namespace fendrel::control
