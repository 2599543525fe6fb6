#pragma once

#include "Platform/Shared/AtNextTurn.h"
#include "Ports/HttpClient.h"

#include <utility>

namespace fendrel {

class NullHttpClient final : public HttpClient {
public:
    Handle send(const HttpRequest&, Done done) override {
        return atNextTurn([done = std::move(done)] {
            done(Result<HttpResponse, HttpError>::failure(
                {.kind = HttpError::Kind::unreachable, .detail = QStringLiteral("there is no network")}));
        });
    }
    bool isOnline() const override { return false; }
    Handle onOnlineChanged(std::function<void()>) override { return {}; }
};

} // namespace fendrel
