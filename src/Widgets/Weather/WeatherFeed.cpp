#include "Widgets/Weather/WeatherFeed.h"

#include "Widgets/Exchange.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTimeZone>

namespace fendrel {

using namespace Qt::StringLiterals;
using weather::Place;

namespace {

const QString guessKey = u"weatherGuessedPlace"_s;
const QString guessZoneKey = u"weatherGuessedZone"_s; // that the guess was made from
constexpr std::chrono::seconds tolerance{60};

std::optional<Place> stored(const SettingsStore& settings, const QString& key) {
    const auto data = settings.read<QByteArray>(key);
    return data ? weather::decode(*data) : std::nullopt;
}

} // namespace

const QString WeatherFeed::settingKey = u"weatherPlace"_s;

QString cityOfZone(const QByteArray& zone) {
    const auto slash = zone.lastIndexOf('/');
    if (slash < 0 || zone.startsWith("Etc/"))
        return {};
    return QString::fromLatin1(zone.sliced(slash + 1)).replace(u'_', u' ');
}

WeatherFeed::WeatherFeed(Clock& clock, HttpClient& http, SettingsStore& settings)
    : Feed(clock, http, {.interval = std::chrono::seconds(1800), .tolerance = tolerance}), m_settings(settings) {}

std::optional<Place> WeatherFeed::place() const {
    const auto picked = stored(m_settings, settingKey);
    return picked ? picked : stored(m_settings, guessKey);
}

bool WeatherFeed::isPlaceGuessed() const {
    return !stored(m_settings, settingKey);
}

bool WeatherFeed::usesFahrenheit(const SettingsStore& settings) {
    if (const auto unit = settings.read<QString>(u"AppleTemperatureUnit"_s))
        return *unit == "Fahrenheit"_L1;
    return QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
}

bool WeatherFeed::isFresh() const {
    const WallTime now = clock().now();
    // The timer's last tick may have come late, and this one not. A report from the future is from before the clock was
    // set back.
    const auto validity = interval() - 2 * tolerance;
    return Feed::isFresh() || (m_report && m_report->fetched <= now && now - m_report->fetched < validity);
}

QString WeatherFeed::text(const FetchFailure& failure) const {
    // The one message that is told is the card's own.
    return failure == FetchFailure::told({}) ? QCoreApplication::translate("Feed", "Pick your city")
                                             : QCoreApplication::translate("Feed", "Can't reach Open-Meteo");
}

Handle WeatherFeed::fetch() {
    // Later, as every answer: the caller keeps what this returns.
    return clock().after({}, [this] {
        if (!begin())
            return;
        const QByteArray zone = QTimeZone::systemTimeZoneId();
        const bool isElsewhere = m_settings.read<QString>(guessZoneKey) != QString::fromLatin1(zone);
        const auto known = place();
        if (known && !(isPlaceGuessed() && isElsewhere))
            forecast(*known);
        else
            hold(guess(zone));
    });
}

void WeatherFeed::forecast(const Place& place) {
    const auto read = [asked = clock().now()](const HttpResponse& response) {
        return weather::readForecast(response, asked);
    };
    const auto request = weather::forecastRequest(place, usesFahrenheit(m_settings));
    hold(exchange<weather::Report>(http(), request, read, [this](const auto& fetched) {
        if (fetched)
            m_report = *fetched;
        fetched ? succeed() : fail(fetched.error());
    }));
}

Handle WeatherFeed::guess(const QByteArray& zone) {
    const QString city = cityOfZone(zone);
    if (city.isEmpty())
        return clock().after({}, [this] { failToGuess(); });
    return search(city, [this, zone](const Fetched<std::optional<Place>>& found) {
        if (found && *found) {
            m_settings.set(guessKey, weather::encode(**found));
            m_settings.set(guessZoneKey, QString::fromLatin1(zone));
            m_report.reset();
            forecast(**found);
        } else if (found) {
            failToGuess();
        } else {
            fail(found.error());
        }
    });
}

void WeatherFeed::failToGuess() {
    m_settings.remove(guessKey);
    m_report.reset();
    fail(FetchFailure::told({}));
}

Handle WeatherFeed::search(const QString& name, FetchDone<std::optional<Place>> done) {
    return exchange<std::optional<Place>>(http(), weather::searchRequest(name), weather::readSearch, std::move(done));
}

void WeatherFeed::setCity(const QString& name, FetchDone<bool> done) {
    m_search = search(name.trimmed(), [this, done = std::move(done)](const Fetched<std::optional<Place>>& found) {
        if (found && *found) {
            m_settings.set(settingKey, weather::encode(**found));
            reload();
        }
        done(found ? Fetched<bool>(found->has_value()) : Fetched<bool>::failure(found.error()));
    });
}

void WeatherFeed::reload() {
    m_search.reset();
    m_report.reset(); // of another city
    if (isActive())
        refresh(true);
    Q_EMIT changed();
}

} // namespace fendrel
