#include "Widgets/Weather/WeatherFeed.h"

#include "Widgets/Exchange.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTimeZone>

namespace fendrel {

using namespace Qt::StringLiterals;
using weather::Place;

namespace {

const QString placeKey = u"weatherPlace"_s;
const QString guessKey = u"weatherGuessedPlace"_s;
constexpr auto interval = std::chrono::seconds(1800);

std::optional<Place> stored(const SettingsStore& settings, const QString& key) {
    const auto data = settings.read<QByteArray>(key);
    return data ? weather::decode(*data) : std::nullopt;
}

} // namespace

QString cityOfZone(const QByteArray& zone) {
    const auto slash = zone.lastIndexOf('/');
    if (slash < 0 || zone.startsWith("Etc/"))
        return {};
    return QString::fromLatin1(zone.sliced(slash + 1)).replace(u'_', u' ');
}

WeatherFeed::WeatherFeed(Clock& clock, HttpClient& http, SettingsStore& settings)
    : Feed(clock, http, {.interval = interval, .tolerance = std::chrono::seconds(60)}), m_settings(settings) {}

std::optional<Place> WeatherFeed::place() const {
    const auto picked = stored(m_settings, placeKey);
    return picked ? picked : stored(m_settings, guessKey);
}

bool WeatherFeed::isPlaceGuessed() const {
    return !stored(m_settings, placeKey);
}

bool WeatherFeed::usesFahrenheit(const SettingsStore& settings) {
    if (const auto unit = settings.read<QString>(u"AppleTemperatureUnit"_s))
        return *unit == "Fahrenheit"_L1;
    return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
}

bool WeatherFeed::isFresh() const {
    return Feed::isFresh() || (m_report && clock().now() - m_report->fetched < interval);
}

QString WeatherFeed::text(const FetchFailure& failure) const {
    // The one message that is told is the card's own.
    return failure == FetchFailure::told({}) ? QCoreApplication::translate("Feed", "Pick your city")
                                             : QCoreApplication::translate("Feed", "Can't reach Open-Meteo");
}

Handle WeatherFeed::fetch() {
    // Later, as every answer: the caller keeps what this returns.
    return clock().after({}, [this] {
        const auto known = place();
        if (!begin())
            return;
        if (known)
            forecast(*known);
        else
            hold(guess());
    });
}

void WeatherFeed::forecast(const Place& place) {
    const auto read = [this](const HttpResponse& response) { return weather::readForecast(response, clock().now()); };
    const auto request = weather::forecastRequest(place, usesFahrenheit(m_settings));
    hold(exchange<weather::Report>(http(), request, read, [this](const auto& fetched) {
        if (fetched)
            m_report = *fetched;
        fetched ? succeed() : fail(fetched.error());
    }));
}

Handle WeatherFeed::guess() {
    const QString city = cityOfZone(QTimeZone::systemTimeZoneId());
    if (city.isEmpty())
        return clock().after({}, [this] { fail(FetchFailure::told({})); });
    return search(city, [this](const Fetched<std::optional<Place>>& found) {
        if (found && *found) {
            m_settings.set(guessKey, weather::encode(**found));
            forecast(**found);
        } else {
            fail(found ? FetchFailure::told({}) : found.error());
        }
    });
}

Handle WeatherFeed::search(const QString& name, FetchDone<std::optional<Place>> done) {
    return exchange<std::optional<Place>>(http(), weather::searchRequest(name), weather::readSearch, std::move(done));
}

void WeatherFeed::setCity(const QString& name, std::function<void(bool)> done) {
    m_search = search(name.trimmed(), [this, done = std::move(done)](const Fetched<std::optional<Place>>& found) {
        const bool isFound = found && *found;
        if (isFound) {
            m_settings.set(placeKey, weather::encode(**found));
            m_report.reset(); // of another city
            refresh(true);
        }
        done(isFound);
    });
}

} // namespace fendrel
