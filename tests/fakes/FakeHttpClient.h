#pragma once

#include "Ports/HttpClient.h"
#include "fakes/OpenRequests.h"

namespace fendrel {

/// Answers only when told to, oldest request first.
class FakeHttpClient final : public HttpClient {
public:
    using Outcome = Result<HttpResponse, HttpError>;

    Handle send(const HttpRequest& request, Done done) override {
        requests.append(request);
        return m_open.add(std::move(done));
    }

    /// Both return false when no request waits.
    bool answerNext(const HttpResponse& response) { return m_open.answerOldest(response); }
    bool failNext(HttpError::Kind kind) {
        return m_open.answerOldest(
            Outcome::failure({.kind = kind, .detail = QStringLiteral("told by the test")}));
    }
    int waiting() const { return m_open.waiting(); }
    int cancelled() const { return m_open.cancelled(); }

    QList<HttpRequest> requests;

private:
    OpenRequests<Outcome> m_open;
};

} // namespace fendrel
