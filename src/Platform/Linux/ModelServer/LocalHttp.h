#pragma once

#include "Platform/Linux/ModelServer/LocalHttpAddress.h"
#include "Ports/Clock.h"
#include "Ports/HttpClient.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace fendrel {

struct LocalHttpRequest {
    LocalEndpoint endpoint{};
    QByteArray path{};
    std::optional<QByteArray> body{}; ///< JSON to post; without it, it is a GET
    std::chrono::milliseconds timeout{20'000};
};

/// HTTP with servers on this machine, over loopback or a Unix socket. Nothing leaves the machine: no name is looked up,
/// no proxy asked, no redirect followed. An answer of more than 1 MiB with its headers is an error. Main thread.
class LocalHttp {
public:
    using Outcome = Result<HttpResponse, HttpError>; ///< the headers of the response are left out
    using Done = std::function<void(const Outcome&)>;

    explicit LocalHttp(Clock& clock);
    ~LocalHttp(); ///< requests under way end without a callback; not from inside one

    /// Dropping the handle closes the connection of a request that is under way.
    Handle send(const LocalHttpRequest& request, Done done);

private:
    struct State;
    Clock& m_clock;
    std::shared_ptr<State> m_state;
};

} // namespace fendrel
