#pragma once

#include "Ports/Clock.h"
#include "Ports/HttpClient.h"

#include <memory>

namespace fendrel {

/// HTTP and HTTPS without cookies, cache or stored credentials. Main thread.
class NetworkClient final : public HttpClient {
public:
    explicit NetworkClient(Clock& clock);
    ~NetworkClient() override; ///< requests under way end without a callback

    Handle send(const HttpRequest& request, Done done) override;
    bool isOnline() const override;
    Handle onOnlineChanged(std::function<void()> run) override;

private:
    struct State;
    Clock& m_clock;
    std::shared_ptr<State> m_state;
};

} // namespace fendrel
