#pragma once

#include "Base/Result.h"
#include "Ports/HttpClient.h"

#include <QString>

#include <chrono>
#include <functional>
#include <optional>

namespace fendrel {

/// What a fetch has to say to the user in words of its own.
struct FeedError {
    QString message{};
    bool operator==(const FeedError&) const = default;
};

/// Why a fetch brought nothing.
struct FetchFailure {
    enum class Kind { told, undecodable, unreachable };
    Kind kind{};
    FeedError error{};                                ///< where it is `told`
    std::optional<std::chrono::seconds> retryAfter{}; ///< the service wants to be left alone so long

    static FetchFailure told(const QString& message) { return {.kind = Kind::told, .error = {.message = message}}; }
    static FetchFailure undecodable() { return {.kind = Kind::undecodable}; }
    static FetchFailure unreachable() { return {.kind = Kind::unreachable}; }
    bool operator==(const FetchFailure&) const = default;
};

template<class Value>
using Fetched = Result<Value, FetchFailure>;
template<class Value>
using FetchDone = std::function<void(const Fetched<Value>&)>;

/// What the card says, in the user's language. `service` is the name that people know.
QString message(const FetchFailure& failure, const QString& service);

QString refusedKey(const QString& service); ///< the service doesn't know the key, or doesn't allow it enough

/// What is wrong with an answer before its body is looked at: any status but 200.
std::optional<FetchFailure> answered(const HttpResponse& response, const QString& service);
/// The same, where 401 and 403 are `refusedKey`.
std::optional<FetchFailure> refusal(const HttpResponse& response, const QString& service);

/// A request that got no answer at all, or one too large to be meant for us.
FetchFailure failure(const HttpError& error);

} // namespace fendrel
