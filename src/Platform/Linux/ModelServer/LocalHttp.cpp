#include "Platform/Linux/ModelServer/LocalHttp.h"

#include "Platform/Linux/ModelServer/CurlLoop.h"

#include <cstdint>
#include <map>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t sizeLimit = std::size_t{1024} * 1024;

/// One request with its answer so far. Stays where it is: libcurl keeps its address.
class Exchange {
public:
    Exchange(const Curl& curl, const LocalHttpRequest& request)
        : m_curl(curl), m_body(request.body.value_or(QByteArray())) {
        auto* const transfer = m_transfer.get();
        m_curl.easySetopt(transfer, CURLOPT_PROTOCOLS_STR, "http");
        m_curl.easySetopt(transfer, CURLOPT_URL, ("http://" + request.endpoint.authority + request.path).constData());
        if (!request.endpoint.socket.isEmpty())
            m_curl.easySetopt(transfer, CURLOPT_UNIX_SOCKET_PATH, request.endpoint.socket.constData());
        m_curl.easySetopt(transfer, CURLOPT_PROXY, ""); // whatever the environment says
        m_curl.easySetopt(transfer, CURLOPT_NOPROXY, "*");
        m_curl.easySetopt(transfer, CURLOPT_FOLLOWLOCATION, 0L);
        m_curl.easySetopt(transfer, CURLOPT_NOSIGNAL, 1L);
        m_curl.easySetopt(transfer, CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
        m_curl.easySetopt(transfer, CURLOPT_WRITEFUNCTION, &Exchange::takeBody);
        m_curl.easySetopt(transfer, CURLOPT_WRITEDATA, this);
        m_curl.easySetopt(transfer, CURLOPT_HEADERFUNCTION, &Exchange::takeHeader);
        m_curl.easySetopt(transfer, CURLOPT_HEADERDATA, this);
        if (request.body) {
            m_headers.reset(m_curl.slistAppend(nullptr, "Content-Type: application/json"));
            m_curl.easySetopt(transfer, CURLOPT_HTTPHEADER, m_headers.get());
            m_curl.easySetopt(transfer, CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t{m_body.size()});
            m_curl.easySetopt(transfer, CURLOPT_POSTFIELDS, m_body.constData());
        }
    }
    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    CURL* transfer() const { return m_transfer.get(); }

    LocalHttp::Outcome outcome(CURLcode result) const {
        if (m_received > sizeLimit) {
            return LocalHttp::Outcome::failure({.kind = HttpError::Kind::tooLarge, .detail = u"answers too much"_s});
        }
        if (result != CURLE_OK) {
            return LocalHttp::Outcome::failure(
                {.kind = HttpError::Kind::unreachable, .detail = QString::fromLatin1(m_curl.easyStrerror(result))});
        }
        long status = 0;
        m_curl.easyGetinfo(m_transfer.get(), CURLINFO_RESPONSE_CODE, &status);
        return HttpResponse{.status = static_cast<int>(status), .body = m_answer};
    }

private:
    /// Less than was offered ends the transfer.
    static std::size_t takeBody(const char* data, std::size_t size, std::size_t count, void* self) {
        auto& exchange = *static_cast<Exchange*>(self);
        const std::size_t taken = takeHeader(data, size, count, self);
        exchange.m_answer.append(data, static_cast<qsizetype>(taken));
        return taken;
    }
    static std::size_t takeHeader(const char*, std::size_t size, std::size_t count, void* self) {
        auto& exchange = *static_cast<Exchange*>(self);
        exchange.m_received += size * count;
        return exchange.m_received > sizeLimit ? 0 : size * count;
    }

    const Curl& m_curl;
    QByteArray m_body;
    QByteArray m_answer;
    std::size_t m_received = 0;
    std::unique_ptr<curl_slist, decltype(Curl::slistFreeAll)> m_headers{nullptr, m_curl.slistFreeAll};
    std::unique_ptr<CURL, decltype(Curl::easyCleanup)> m_transfer{m_curl.easyInit(), m_curl.easyCleanup};
};

} // namespace

struct LocalHttp::State {
    struct Request {
        Exchange exchange;
        Handle deadline{};
        Request(const Curl& curl, const LocalHttpRequest& request) : exchange(curl, request) {}
    };

    State(const Curl& curl, Clock& clock) : loop(curl, clock) {}
    ~State() {
        for (const auto& [id, request] : requests)
            loop.remove(request.exchange.transfer());
    }

    std::map<std::uint64_t, Request> requests;
    std::uint64_t nextID = 0;
    CurlLoop loop;
};

LocalHttp::LocalHttp(Clock& clock) : m_clock(clock) {}

LocalHttp::~LocalHttp() = default;

Handle LocalHttp::send(const LocalHttpRequest& request, Done done) {
    const Curl* const curl = Curl::library();
    if (curl == nullptr) {
        return m_clock.after({}, [done = std::move(done)] {
            done(Outcome::failure({.kind = HttpError::Kind::unreachable, .detail = u"libcurl is not installed"_s}));
        });
    }
    if (!m_state)
        m_state = std::make_shared<State>(*curl, m_clock);
    const auto id = m_state->nextID++;
    auto& sent = m_state->requests.try_emplace(id, *curl, request).first->second;
    const std::weak_ptr state = m_state;
    sent.deadline = m_clock.after(request.timeout, [state, id, done] {
        if (const auto alive = state.lock()) {
            const auto ended = alive->requests.extract(id);
            alive->loop.remove(ended.mapped().exchange.transfer());
            done(Outcome::failure({.kind = HttpError::Kind::timedOut, .detail = u"no answer in time"_s}));
        }
    });
    m_state->loop.add(sent.exchange.transfer(), [state, id, done = std::move(done)](CURLcode result) {
        if (const auto alive = state.lock()) {
            auto ended = alive->requests.extract(id);
            ended.mapped().deadline.reset();
            done(ended.mapped().exchange.outcome(result));
        }
    });
    return Handle([state, id] {
        const auto alive = state.lock();
        if (!alive)
            return;
        if (const auto dropped = alive->requests.extract(id))
            alive->loop.remove(dropped.mapped().exchange.transfer());
    });
}

} // namespace fendrel
