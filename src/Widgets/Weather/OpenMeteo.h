#pragma once

#include "Base/WallTime.h"
#include "Widgets/FetchFailure.h"

#include <QList>
#include <QString>

#include <optional>

namespace fendrel::weather {

struct Place {
    QString name{};
    double latitude{};  ///< degrees, north is positive
    double longitude{}; ///< degrees, east is positive
    bool operator==(const Place&) const = default;
};

struct Hour {
    WallTime time{};
    double temperature{};
    int code{};
    bool isDay{};
    bool operator==(const Hour&) const = default;
};

/// Temperatures are in the unit that was asked for.
struct Report {
    double temperature{};
    double felt{};
    int code{};
    bool isDay{};
    double high{};
    double low{};
    QList<Hour> hours{}; ///< the present one and those to come
    WallTime fetched{};
    bool operator==(const Report&) const = default;
};

// https://open-meteo.com/en/docs
HttpRequest forecastRequest(const Place& place, bool fahrenheit);
Fetched<Report> readForecast(const HttpResponse& response, WallTime now);

// https://open-meteo.com/en/docs/geocoding-api
HttpRequest searchRequest(const QString& name);
Fetched<std::optional<Place>> readSearch(const HttpResponse& response); ///< nothing: no such place

/// A place as the settings keep it.
QByteArray encode(const Place& place);
std::optional<Place> decode(const QByteArray& stored);

} // namespace fendrel::weather
