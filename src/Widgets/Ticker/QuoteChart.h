#pragma once

#include "Widgets/FetchFailure.h"

#include <QList>
#include <QString>

namespace fendrel::ticker {

struct Quote {
    QString symbol{};
    QString name{}; ///< may be empty
    double price{};
    std::optional<double> previousClose{};
    QString currency{};
    QList<double> points{};             ///< the day's prices, a quarter of an hour apart
    std::optional<double> move() const; ///< of the day
    bool operator==(const Quote&) const = default;
};

/// The chart that the service's own pages ask for; it is documented nowhere.
HttpRequest chartRequest(const QString& symbol);
/// Nothing: there is no such symbol.
Fetched<std::optional<Quote>> readChart(const HttpResponse& response, const QString& symbol);

} // namespace fendrel::ticker
