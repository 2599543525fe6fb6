#pragma once

#include "Ports/SettingsStore.h"
#include "Widgets/Feed.h"
#include "Widgets/Weather/OpenMeteo.h"

namespace fendrel {

/// Now and the next hours in a city. Until the user picks one it is the city that the time zone is called after.
class WeatherFeed final : public Feed {
    Q_OBJECT
public:
    static const QString settingKey; ///< of the place that the user picked

    WeatherFeed(Clock& clock, HttpClient& http, SettingsStore& settings);

    std::optional<weather::Place> place() const;
    bool isPlaceGuessed() const; ///< the user picked none
    const std::optional<weather::Report>& report() const { return m_report; }
    static bool usesFahrenheit(const SettingsStore& settings);

    /// Looks for a city of that name and shows its weather. `done`: whether there is one. A search before it is
    /// dropped.
    void setCity(const QString& name, FetchDone<bool> done);
    /// Takes over a place that was changed in the settings themselves.
    void reload();

protected:
    Handle fetch() override;
    QString text(const FetchFailure& failure) const override;
    bool isFresh() const override;

private:
    void forecast(const weather::Place& place);
    Handle guess(const QByteArray& zone);
    void failToGuess();
    Handle search(const QString& name, FetchDone<std::optional<weather::Place>> done);

    SettingsStore& m_settings;
    std::optional<weather::Report> m_report;
    Handle m_search;
};

/// The city in the name of a time zone, "" where there is none: "America/Argentina/Buenos_Aires" names Buenos Aires.
QString cityOfZone(const QByteArray& zone);

} // namespace fendrel
