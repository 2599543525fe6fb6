#include "Platform/Shared/NetworkClient.h"

#include "Base/Worker.h"
#include "Platform/Shared/HttpExchange.h"
#include "Platform/Shared/Listeners.h"

#include <QCoreApplication>
#include <QHash>
#include <QNetworkAccessManager>
#include <QNetworkInformation>
#include <QNetworkProxyFactory>

#include <atomic>
#include <map>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

bool isLocal(const QString& host) {
    return host == "localhost"_L1 || QHostAddress(host).isLoopback();
}

/// What the system said of each host when it was last asked; the toolkit would ask it on the main thread. No proxy
/// stands between this machine and itself.
class KnownProxies final : public QNetworkProxyFactory {
public:
    void set(const QString& host, const QList<QNetworkProxy>& proxies) { m_proxies[host] = proxies; }
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return m_proxies.value(query.peerHostName(), {QNetworkProxy(QNetworkProxy::NoProxy)});
    }

private:
    QHash<QString, QList<QNetworkProxy>> m_proxies;
};

/// Asks the system, which may have to wait for a script from somewhere in the network.
Handle lookUpProxies(Worker& worker, const QUrl& address, std::function<void(const QList<QNetworkProxy>&)> done) {
    struct Question {
        std::atomic<bool> isWanted{true};
        std::function<void(const QList<QNetworkProxy>&)> done; // the main thread's
    };
    const auto question = std::make_shared<Question>();
    question->done = std::move(done);
    worker.post({}, [address, question] {
        if (!question->isWanted)
            return;
        const auto proxies = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(address));
        QMetaObject::invokeMethod(
            qApp,
            [question, proxies] {
                if (const auto told = std::exchange(question->done, {}))
                    told(proxies);
            },
            Qt::QueuedConnection);
    });
    return Handle([question] {
        question->isWanted = false;
        question->done = {};
    });
}

} // namespace

struct NetworkClient::State {
    std::optional<Route> route;
    std::unique_ptr<QNetworkAccessManager> manager; // costs milliseconds, so that it waits for the first request
    KnownProxies* proxies = nullptr;                // the manager's
    std::unique_ptr<Worker> lookupThread;           // waits for the first lookup
    struct Lookup {
        Handle answer;
        Handle deadline;
    };
    std::map<std::uint64_t, Lookup> lookups;
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
            if (route)
                manager->setProxy(route->proxy);
            else
                manager->setProxyFactory(proxies = new KnownProxies);
        }
        return *manager;
    }
};

NetworkClient::NetworkClient(Clock& clock, std::optional<Route> route)
    : m_clock(clock), m_state(std::make_shared<State>()) {
    m_state->route = std::move(route);
}

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
    if (m_state->route || isLocal(request.url.host())) {
        exchange(m_state, m_clock, id, request, std::move(done));
    } else {
        const auto wanted = std::make_shared<Done>(std::move(done)); // by the answer or the deadline
        if (!m_state->lookupThread)
            m_state->lookupThread = std::make_unique<Worker>(u"proxies"_s);
        const auto deadline = m_clock.continuousNow() + request.timeout;
        m_state->lookups[id] = {
            .answer = lookUpProxies(*m_state->lookupThread, request.url,
                                    [state, &clock = m_clock, id, request, deadline, wanted](const auto& proxies) {
                                        const auto alive = state.lock();
                                        alive->network();
                                        alive->proxies->set(request.url.host(), proxies);
                                        alive->lookups.erase(id);
                                        HttpRequest rest = request;
                                        rest.timeout = std::chrono::ceil<std::chrono::milliseconds>(
                                            deadline - clock.continuousNow());
                                        exchange(alive, clock, id, rest, std::move(*wanted));
                                    }),
            .deadline = m_clock.after(request.timeout, [state, id, wanted] {
                const auto ended = state.lock()->lookups.extract(id); // until `wanted` returns, as below
                (*wanted)(HttpExchange::Outcome::failure(
                    {.kind = HttpError::Kind::timedOut, .detail = u"the system's proxies are not known in time"_s}));
            })};
    }
    return Handle([state, id] {
        if (const auto alive = state.lock()) {
            alive->lookups.erase(id);
            alive->exchanges.erase(id);
        }
    });
}

void NetworkClient::exchange(const std::shared_ptr<State>& state, Clock& clock, std::uint64_t id,
                             const HttpRequest& request, Done done) {
    const auto* const security = state->route ? &state->route->security : nullptr;
    state->exchanges[id] = std::make_unique<HttpExchange>(
        state->network(), clock, request, security,
        [state = std::weak_ptr(state), id, done = std::move(done)](const auto& outcome) {
            if (const auto alive = state.lock()) {
                const auto ended = alive->exchanges.extract(id); // until `done` returns, which may drop the client
                done(outcome);
            }
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
