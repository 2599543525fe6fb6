#pragma once

#include "Widgets/FetchFailure.h"

#include <QCryptographicHash>

#include <memory>
#include <utility>

namespace fendrel {

inline std::pair<QByteArray, QByteArray> bearer(const QString& key) {
    return {"Authorization", "Bearer " + key.toUtf8()};
}

/// By which a key can be recognised, but not used.
inline QByteArray digest(const QString& key) {
    return QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256);
}

/// Of a fetch that asks again: drops whichever request is under way.
inline Handle lastOf(std::shared_ptr<Handle> request) {
    return Handle([request = std::move(request)] { request->reset(); });
}

/// One request, and what `read` makes of its answer. No key goes where it could be read on the way.
template<class Value, class Read>
Handle exchange(HttpClient& http, const HttpRequest& request, Read read, FetchDone<Value> done) {
    return http.send(request, [read = std::move(read), done = std::move(done)](const auto& outcome) {
        done(outcome ? read(*outcome) : Fetched<Value>::failure(failure(outcome.error())));
    });
}

} // namespace fendrel
