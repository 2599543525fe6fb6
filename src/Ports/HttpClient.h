#pragma once

#include "Base/Handle.h"
#include "Base/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <utility>

namespace fendrel {

using HttpHeaders = QList<std::pair<QByteArray, QByteArray>>;

struct HttpRequest {
    QByteArray method{"GET"};
    QUrl url{};
    HttpHeaders headers{};
    QByteArray body{};
    std::chrono::milliseconds timeout{60'000};
    qint64 sizeLimit{qint64{8} * 1024 * 1024}; ///< bytes of the answer's body, unpacked
};

struct HttpResponse {
    int status{};
    HttpHeaders headers{}; ///< names in lower case
    QByteArray body{};
};

struct HttpError {
    enum class Kind { unreachable, timedOut, tooLarge };
    Kind kind{};
    QString detail{}; ///< for the log; never holds a header or a query
};

/// Redirects are never followed: they come back with their 3xx status, and no header goes to another host.
class HttpClient {
public:
    using Done = std::function<void(const Result<HttpResponse, HttpError>&)>;
    virtual ~HttpClient() = default;
    virtual Handle send(const HttpRequest& request, Done done) = 0;

    /// Whether the system knows of a network. True where it cannot tell.
    virtual bool isOnline() const = 0;
    virtual Handle onOnlineChanged(std::function<void()> run) = 0;
};

} // namespace fendrel
