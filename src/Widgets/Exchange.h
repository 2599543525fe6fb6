#pragma once

#include "Widgets/FetchFailure.h"

#include <utility>

namespace fendrel {

inline std::pair<QByteArray, QByteArray> bearer(const QString& key) {
    return {"Authorization", "Bearer " + key.toUtf8()};
}

/// One request, and what `read` makes of its answer. No key goes where it could be read on the way.
template<class Value, class Read>
Handle exchange(HttpClient& http, const HttpRequest& request, Read read, FetchDone<Value> done) {
    return http.send(request, [read = std::move(read), done = std::move(done)](const auto& outcome) {
        done(outcome ? read(*outcome) : Fetched<Value>::failure(failure(outcome.error())));
    });
}

} // namespace fendrel
