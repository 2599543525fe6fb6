#pragma once

#include "Widgets/Revenue/DodoPayments.h"

#include <memory>

namespace fendrel::dodo {

/// Payments, refunds, and what of them was settled. What a payment brought is asked once; the answers are kept as long
/// as this object.
class Client {
public:
    explicit Client(HttpClient& http) : m_http(http) {}
    Handle fetch(const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done);

private:
    using Settlements = QHash<QString, std::optional<Settlement>>;
    class Day;

    HttpClient& m_http;
    std::shared_ptr<Settlements> m_settlements = std::make_shared<Settlements>();
};

} // namespace fendrel::dodo
