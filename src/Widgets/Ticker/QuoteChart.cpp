#include "Widgets/Ticker/QuoteChart.h"

#include "Widgets/Json.h"

#include <QJsonArray>

namespace fendrel::ticker {

using namespace Qt::StringLiterals;

std::optional<double> Quote::move() const {
    return previousClose ? std::optional(price - *previousClose) : std::nullopt;
}

HttpRequest chartRequest(const QString& symbol) {
    // What stands in the symbol stays in its part of the path.
    const QByteArray encoded = QUrl::toPercentEncoding(symbol);
    return {.url = QUrl::fromEncoded("https://query1.finance.yahoo.com/v8/finance/chart/" + encoded +
                                     "?range=1d&interval=15m"),
            .headers = {{"User-Agent", "Mozilla/5.0"}}};
}

Fetched<std::optional<Quote>> readChart(const HttpResponse& response, const QString& symbol) {
    using Found = Fetched<std::optional<Quote>>;
    if (response.status == 404)
        return std::optional<Quote>();
    if (const auto refused = answered(response, symbol))
        return Found::failure(*refused);
    const auto body = json::object(response.body).value_or(QJsonObject());
    const auto results = body["chart"_L1]["result"_L1];
    if (results.isNull() || (results.isArray() && results.toArray().isEmpty()))
        return std::optional<Quote>();
    const auto result = results.toArray().at(0);
    const auto meta = result["meta"_L1];
    const auto price = meta["regularMarketPrice"_L1];
    if (!price.isDouble())
        return Found::failure(FetchFailure::undecodable());
    const auto chartClose = meta["chartPreviousClose"_L1];
    const auto close = chartClose.isDouble() ? chartClose : meta["previousClose"_L1];
    Quote quote{.symbol = symbol,
                .name = meta["shortName"_L1].toString(),
                .price = price.toDouble(),
                .previousClose = close.isDouble() ? std::optional(close.toDouble()) : std::nullopt,
                .currency = meta["currency"_L1].toString()};
    for (const auto& point : result["indicators"_L1]["quote"_L1].toArray().at(0)["close"_L1].toArray())
        if (point.isDouble())
            quote.points.append(point.toDouble());
    return std::optional(std::move(quote));
}

} // namespace fendrel::ticker
