#include "Platform/Shared/NetworkClient.h"

#include "Platform/Shared/HttpExchange.h"
#include "Platform/Shared/Listeners.h"

#include <QNetworkAccessManager>
#include <QNetworkInformation>
#include <QNetworkProxyFactory>

#include <cstdint>
#include <map>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// The system's proxies, but never one between this machine and itself.
class ProxyChoice final : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        const QString host = query.peerHostName();
        if (host == "localhost"_L1 || QHostAddress(host).isLoopback())
            return {QNetworkProxy(QNetworkProxy::NoProxy)};
        return systemProxyForQuery(query);
    }
};

} // namespace

struct NetworkClient::State {
    std::unique_ptr<QNetworkAccessManager> manager; // costs milliseconds, so that it waits for the first request
    std::map<std::uint64_t, std::unique_ptr<HttpExchange>> exchanges;
    std::uint64_t nextId = 0;
    Listeners<std::function<void()>> onlineChanged;
    std::optional<QMetaObject::Connection> watch; // asks the system's network service, and waits for the first question

    ~State() {
        if (watch)
            QObject::disconnect(*watch);
    }

    QNetworkInformation* information() {
        if (!watch && QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability))
            watch = QObject::connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged,
                                     [this] { onlineChanged.forEach([](const auto& run) { run(); }); });
        return watch ? QNetworkInformation::instance() : nullptr;
    }

    QNetworkAccessManager& network() {
        if (!manager) {
            manager = std::make_unique<QNetworkAccessManager>();
            manager->setProxyFactory(new ProxyChoice); // the manager owns it
        }
        return *manager;
    }
};

NetworkClient::NetworkClient(Clock& clock) : m_clock(clock), m_state(std::make_shared<State>()) {}

NetworkClient::~NetworkClient() = default;

Handle NetworkClient::send(const HttpRequest& request, Done done) {
    const QString scheme = request.url.scheme();
    if (scheme != "http"_L1 && scheme != "https"_L1) { // the network manager would also open files
        return m_clock.after({}, [done = std::move(done)] {
            done(HttpExchange::Outcome::failure(
                {.kind = HttpError::Kind::unreachable, .detail = u"neither http nor https"_s}));
        });
    }
    const auto id = m_state->nextId++;
    const std::weak_ptr state = m_state;
    m_state->exchanges[id] = std::make_unique<HttpExchange>(
        m_state->network(), m_clock, request, [state, id, done = std::move(done)](const auto& outcome) {
            if (const auto alive = state.lock()) {
                const auto ended = alive->exchanges.extract(id); // until `done` returns, which may drop the client
                done(outcome);
            }
        });
    return Handle([state, id] {
        if (const auto alive = state.lock())
            alive->exchanges.erase(id);
    });
}

bool NetworkClient::isOnline() const {
    const auto* const information = m_state->information();
    return !information || information->reachability() != QNetworkInformation::Reachability::Disconnected;
}

Handle NetworkClient::onOnlineChanged(std::function<void()> run) {
    return m_state->onlineChanged.add(std::move(run));
}

} // namespace fendrel
