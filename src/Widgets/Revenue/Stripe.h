#pragma once

#include "Widgets/Revenue/Pages.h"
#include "Widgets/Revenue/Sale.h"

namespace fendrel::stripe {

// https://docs.stripe.com/api/balance_transactions, the newest first
HttpRequest transactionsRequest(const QString& key, WallTime since, const QString& after = {});
Fetched<revenue::Page<Sale>> readTransactions(const HttpResponse& response, const QString& key, WallTime since);

Handle fetch(HttpClient& http, const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done);

} // namespace fendrel::stripe
