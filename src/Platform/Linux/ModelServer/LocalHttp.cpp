#include "Platform/Linux/ModelServer/LocalHttp.h"

#include "Platform/Linux/ModelServer/CurlLoop.h"

#include <cstdint>
#include <map>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t sizeLimit = std::size_t{1024} * 1024;

struct Library {
    Library() { curl_global_init(CURL_GLOBAL_NOTHING); }
    ~Library() { curl_global_cleanup(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};

struct CurlDelete {
    void operator()(CURL* transfer) const { curl_easy_cleanup(transfer); }
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

/// One request with its answer so far. Stays where it is: libcurl keeps its address.
class Exchange {
public:
    explicit Exchange(const LocalHttpRequest& request) : m_body(request.body.value_or(QByteArray())) {
        auto* const curl = m_transfer.get();
        curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http");
        curl_easy_setopt(curl, CURLOPT_URL, ("http://" + request.endpoint.authority + request.path).constData());
        if (!request.endpoint.socket.isEmpty())
            curl_easy_setopt(curl, CURLOPT_UNIX_SOCKET_PATH, request.endpoint.socket.constData());
        curl_easy_setopt(curl, CURLOPT_PROXY, ""); // whatever the environment says
        curl_easy_setopt(curl, CURLOPT_NOPROXY, "*");
        curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 0L);
        curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(curl, CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
        curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &Exchange::takeBody);
        curl_easy_setopt(curl, CURLOPT_WRITEDATA, this);
        curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &Exchange::takeHeader);
        curl_easy_setopt(curl, CURLOPT_HEADERDATA, this);
        if (request.body) {
            m_headers.reset(curl_slist_append(nullptr, "Content-Type: application/json"));
            curl_easy_setopt(curl, CURLOPT_HTTPHEADER, m_headers.get());
            curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t{m_body.size()});
            curl_easy_setopt(curl, CURLOPT_POSTFIELDS, m_body.constData());
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
                {.kind = HttpError::Kind::unreachable, .detail = QString::fromLatin1(curl_easy_strerror(result))});
        }
        long status = 0;
        curl_easy_getinfo(m_transfer.get(), CURLINFO_RESPONSE_CODE, &status);
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

    QByteArray m_body;
    QByteArray m_answer;
    std::size_t m_received = 0;
    std::unique_ptr<curl_slist, CurlDelete> m_headers;
    std::unique_ptr<CURL, CurlDelete> m_transfer{curl_easy_init()};
};

} // namespace

struct LocalHttp::State {
    struct Request {
        Exchange exchange;
        Handle deadline{};
        Request(const LocalHttpRequest& request) : exchange(request) {}
    };

    explicit State(Clock& clock) : loop(clock) {}
    ~State() {
        for (const auto& [id, request] : requests)
            loop.remove(request.exchange.transfer());
    }

    std::map<std::uint64_t, Request> requests;
    std::uint64_t nextID = 0;
    CurlLoop loop;
};

LocalHttp::LocalHttp(Clock& clock) : m_clock(clock) {
    static const Library library;
    m_state = std::make_shared<State>(clock);
}

LocalHttp::~LocalHttp() = default;

Handle LocalHttp::send(const LocalHttpRequest& request, Done done) {
    const auto id = m_state->nextID++;
    auto& sent = m_state->requests.try_emplace(id, request).first->second;
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
