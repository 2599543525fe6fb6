#pragma once

#include "Widgets/Revenue/Pages.h"
#include "Widgets/Revenue/Sale.h"

#include <memory>

namespace fendrel::lemonsqueezy {

// https://docs.lemonsqueezy.com/api/orders
HttpRequest ordersRequest(const QString& key, bool isSorted);
/// `request` is one of the list's. A refund becomes a sale of its own, at its own time.
Fetched<revenue::Page<Sale>> readOrders(const HttpResponse& response, const HttpRequest& request, WallTime since);

/// Some keys are refused with the order that we want, by status 400, and taken without. It is remembered while the
/// program runs which key that was: its digest, not the key.
class Client {
public:
    explicit Client(HttpClient& http) : m_http(http) {}
    Handle fetch(const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done);

private:
    HttpClient& m_http;
    std::shared_ptr<QByteArray> m_unsortedKey = std::make_shared<QByteArray>();
};

} // namespace fendrel::lemonsqueezy
