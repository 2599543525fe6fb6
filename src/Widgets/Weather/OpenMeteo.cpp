#include "Widgets/Weather/OpenMeteo.h"

#include "Widgets/Json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QUrlQuery>

#include <cmath>

namespace fendrel::weather {

using namespace Qt::StringLiterals;

namespace {

QString exact(double degrees) {
    return QString::number(degrees, 'f', QLocale::FloatingPointShortest);
}

std::optional<Place> place(const QJsonObject& object) {
    const auto name = object["name"_L1].toString();
    const auto latitude = object["latitude"_L1];
    const auto longitude = object["longitude"_L1];
    if (name.isEmpty() || !latitude.isDouble() || !longitude.isDouble() || std::abs(latitude.toDouble()) > 90 ||
        std::abs(longitude.toDouble()) > 180)
        return {};
    return Place{.name = name, .latitude = latitude.toDouble(), .longitude = longitude.toDouble()};
}

QList<Hour> comingHours(const QJsonObject& hourly, WallTime now) {
    const auto times = hourly["time"_L1].toArray();
    const auto temperatures = hourly["temperature_2m"_L1].toArray();
    const auto codes = hourly["weather_code"_L1].toArray();
    const auto days = hourly["is_day"_L1].toArray();
    QList<Hour> hours;
    for (qsizetype i = 0; i < times.size(); ++i) {
        const auto time = json::unixTime(times[i], std::chrono::seconds(1));
        if (time && *time + std::chrono::hours(1) > now && temperatures[i].isDouble() && codes[i].isDouble())
            hours.append({.time = *time,
                          .temperature = temperatures[i].toDouble(),
                          .code = codes[i].toInt(),
                          .isDay = days[i].toInt() == 1});
    }
    return hours;
}

} // namespace

HttpRequest forecastRequest(const Place& place, bool fahrenheit) {
    QUrl address(u"https://api.open-meteo.com/v1/forecast"_s);
    address.setQuery(QUrlQuery{{u"latitude"_s, exact(place.latitude)},
                               {u"longitude"_s, exact(place.longitude)},
                               {u"current"_s, u"temperature_2m,apparent_temperature,weather_code,is_day"_s},
                               {u"hourly"_s, u"temperature_2m,weather_code,is_day"_s},
                               {u"daily"_s, u"temperature_2m_max,temperature_2m_min"_s},
                               {u"timezone"_s, u"auto"_s},
                               {u"forecast_days"_s, u"2"_s},
                               {u"timeformat"_s, u"unixtime"_s},
                               {u"temperature_unit"_s, fahrenheit ? u"fahrenheit"_s : u"celsius"_s}});
    return {.url = address};
}

Fetched<Report> readForecast(const HttpResponse& response, WallTime now) {
    if (const auto refused = answered(response, u"Open-Meteo"_s))
        return Fetched<Report>::failure(*refused);
    const auto body = json::object(response.body).value_or(QJsonObject());
    const auto current = body["current"_L1];
    const auto daily = body["daily"_L1];
    const auto high = daily["temperature_2m_max"_L1].toArray().at(0);
    const auto low = daily["temperature_2m_min"_L1].toArray().at(0);
    const auto temperature = current["temperature_2m"_L1];
    if (!temperature.isDouble() || !current["weather_code"_L1].isDouble() || !high.isDouble() || !low.isDouble())
        return Fetched<Report>::failure(FetchFailure::undecodable());
    return Report{.temperature = temperature.toDouble(),
                  .felt = current["apparent_temperature"_L1].toDouble(temperature.toDouble()),
                  .code = current["weather_code"_L1].toInt(),
                  .isDay = current["is_day"_L1].toInt() == 1,
                  .high = high.toDouble(),
                  .low = low.toDouble(),
                  .hours = comingHours(body["hourly"_L1].toObject(), now),
                  .fetched = now};
}

HttpRequest searchRequest(const QString& name) {
    // Percent-encoded by hand: a query item would leave the "+" of a name as it is, which is a space to the server.
    const QByteArray encoded = QUrl::toPercentEncoding(name);
    return {.url = QUrl::fromEncoded("https://geocoding-api.open-meteo.com/v1/search?name=" + encoded + "&count=1")};
}

Fetched<std::optional<Place>> readSearch(const HttpResponse& response) {
    using Found = Fetched<std::optional<Place>>;
    if (const auto refused = answered(response, u"Open-Meteo"_s))
        return Found::failure(*refused);
    const auto body = json::object(response.body);
    if (!body)
        return Found::failure(FetchFailure::undecodable());
    return place(body->value("results"_L1).toArray().at(0).toObject());
}

QByteArray encode(const Place& place) {
    return QJsonDocument(
               QJsonObject{{u"name"_s, place.name}, {u"latitude"_s, place.latitude}, {u"longitude"_s, place.longitude}})
        .toJson(QJsonDocument::Compact);
}

std::optional<Place> decode(const QByteArray& stored) {
    return place(json::object(stored).value_or(QJsonObject()));
}

} // namespace fendrel::weather
