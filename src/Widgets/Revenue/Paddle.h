#pragma once

#include "Widgets/Revenue/Pages.h"
#include "Widgets/Revenue/Sale.h"

namespace fendrel::paddle {

// https://developer.paddle.com/api-reference/transactions
HttpRequest transactionsRequest(const QString& key, WallTime since);
/// `request` is one of the list's.
Fetched<revenue::Page<Sale>> readTransactions(const HttpResponse& response, const HttpRequest& request);

Handle fetch(HttpClient& http, const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done);

} // namespace fendrel::paddle
