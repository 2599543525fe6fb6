#pragma once

#include "Ports/Clock.h"
#include "Ports/HttpClient.h"
#include "Ports/SettingsStore.h"
#include "Widgets/FetchFailure.h"
#include "Widgets/Revenue/Money.h"

#include <QDate>

namespace fendrel {

// https://www.exchangerate-api.com/docs/free
HttpRequest ratesRequest();
Fetched<Rates> readRates(const HttpResponse& response);

/// What currencies are worth, asked once a day and kept in the settings. Rates of an earlier day are better than none.
class ExchangeRates {
public:
    ExchangeRates(HttpClient& http, Clock& clock, SettingsStore& settings);

    /// Where the rates are from, which is to be said wherever they show.
    static QUrl source();

    const Rates& rates() const { return m_rates; }

    /// Asks unless those of the day are here. A failure changes nothing.
    void refresh(QDate today, std::function<void()> changed);

private:
    HttpClient& m_http;
    Clock& m_clock;
    SettingsStore& m_settings;
    Rates m_rates;
    std::optional<ContinuousTime> m_notBefore;
    Handle m_request;
};

} // namespace fendrel
