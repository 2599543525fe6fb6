#pragma once

#include "Platform/Shared/Listeners.h"
#include "Ports/HttpClient.h"

#include <algorithm>
#include <list>
#include <memory>
#include <utility>

namespace fendrel {

/// Keeps what it is asked, and answers when told to.
class FakeHttp final : public HttpClient {
public:
    using Outcome = Result<HttpResponse, HttpError>;

    static Outcome answer(const QByteArray& body, int status = 200, const HttpHeaders& headers = {}) {
        return HttpResponse{.status = status, .headers = headers, .body = body};
    }
    static Outcome error(HttpError::Kind kind = HttpError::Kind::unreachable) {
        return Outcome::failure({.kind = kind});
    }

    Handle send(const HttpRequest& request, Done done) override {
        requests.append(request);
        const auto asked = std::make_shared<Asked>(request, std::move(done));
        m_waiting->push_back(asked);
        return Handle([waiting = std::weak_ptr(m_waiting), asked = std::weak_ptr(asked)] {
            if (const auto alive = waiting.lock())
                alive->remove(asked.lock());
        });
    }
    bool isOnline() const override { return m_isOnline; }
    Handle onOnlineChanged(std::function<void()> run) override { return m_onlineChanged.add(std::move(run)); }

    void setOnline(bool isOnline) {
        m_isOnline = isOnline;
        m_onlineChanged.forEach([](const auto& run) { run(); });
    }
    /// Answers the oldest request that waits and whose address holds `part`; false: there is none.
    bool answerNext(const Outcome& outcome, const QString& part = {}) {
        const auto next = std::ranges::find_if(
            *m_waiting, [&](const auto& asked) { return asked->first.url.toString().contains(part); });
        if (next == m_waiting->end())
            return false;
        const auto asked = *next;
        m_waiting->erase(next);
        asked->second(outcome);
        return true;
    }
    /// Answers all that waits, and what is asked meanwhile: `limit` requests at most.
    void serve(const std::function<Outcome(const HttpRequest&)>& server, int limit = 10'000) {
        for (; limit > 0 && !m_waiting->empty(); --limit)
            answerNext(server(m_waiting->front()->first));
    }
    std::size_t waiting() const { return m_waiting->size(); }

    QList<HttpRequest> requests; ///< all that it was ever asked

private:
    using Asked = std::pair<HttpRequest, Done>;

    bool m_isOnline = true;
    Listeners<std::function<void()>> m_onlineChanged;
    std::shared_ptr<std::list<std::shared_ptr<Asked>>> m_waiting =
        std::make_shared<std::list<std::shared_ptr<Asked>>>();
};

} // namespace fendrel
