#pragma once

#include "Ports/Clock.h"
#include "Ports/HttpClient.h"

#include <QNetworkProxy>
#include <QSslConfiguration>

#include <cstdint>
#include <memory>
#include <optional>

namespace fendrel {

/// HTTP and HTTPS without cookies, cache or stored credentials. Main thread.
class NetworkClient final : public HttpClient {
public:
    /// A way of one's own, in place of the system's proxies and of the authorities that it trusts.
    struct Route {
        QNetworkProxy proxy{};
        QSslConfiguration security{};
    };

    explicit NetworkClient(Clock& clock, std::optional<Route> route = {});
    ~NetworkClient() override; ///< requests under way end without a callback

    Handle send(const HttpRequest& request, Done done) override;
    bool isOnline() const override;
    Handle onOnlineChanged(std::function<void()> run) override;

private:
    struct State;
    static void exchange(const std::shared_ptr<State>& state, Clock& clock, std::uint64_t id,
                         const HttpRequest& request, Done done);

    Clock& m_clock;
    std::shared_ptr<State> m_state;
};

} // namespace fendrel
