#pragma once

#include "Widgets/Revenue/Pages.h"
#include "Widgets/Revenue/Sale.h"

namespace fendrel::dodo {

struct Payment {
    QString id{};
    Sale sale{};
    bool operator==(const Payment&) const = default;
};

struct Refund {
    QString paymentId{};
    std::optional<Money> money{}; ///< positive; nothing: all that was paid
    WallTime created{};
    bool operator==(const Refund&) const = default;
};

/// What a payment brought its receiver, whose currency may be another one.
struct Settlement {
    Money paid{};
    std::optional<Money> settled{}; ///< nothing: its provider does not say
    bool operator==(const Settlement&) const = default;
};

enum class Mode { live, test }; ///< each has its own host and keys

// https://docs.dodopayments.com/api-reference; pages are counted from zero
HttpRequest paymentsRequest(const QString& key, Mode mode, WallTime since, int page);
HttpRequest refundsRequest(const QString& key, Mode mode, WallTime since, int page);
/// Nothing where the identifier is none that belongs into an address.
std::optional<HttpRequest> settlementRequest(const QString& key, Mode mode, const QString& paymentId);

/// An answer says nothing of a next page: there is one unless this one is short.
Fetched<revenue::Page<Payment>> readPayments(const HttpResponse& response, const HttpRequest& next);
Fetched<revenue::Page<Refund>> readRefunds(const HttpResponse& response, const HttpRequest& next);
std::optional<Settlement> readSettlement(const HttpResponse& response);

/// What counts: the settled amount where it is known, else the paid one. Refunds shrink with their payment.
QList<Sale> sales(const QList<Payment>& payments, const QList<Refund>& refunds,
                  const QHash<QString, std::optional<Settlement>>& settlements);

} // namespace fendrel::dodo
