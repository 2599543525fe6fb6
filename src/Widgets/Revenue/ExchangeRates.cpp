#include "Widgets/Revenue/ExchangeRates.h"

#include "Widgets/Exchange.h"
#include "Widgets/Json.h"
#include "Widgets/Revenue/ProviderMoney.h"

#include <cmath>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString ratesKey = u"exchangeRates"_s;
const QString dayKey = u"exchangeRatesDay"_s;

bool isRate(double rate) {
    return std::isfinite(rate) && rate > 0;
}

} // namespace

HttpRequest ratesRequest() {
    return {.url = QUrl(u"https://open.er-api.com/v6/latest/USD"_s), .headers = {{"Accept", "application/json"}}};
}

Fetched<Rates> readRates(const HttpResponse& response) {
    if (const auto refused = answered(response, u"Exchange rates"_s))
        return Fetched<Rates>::failure(*refused);
    const auto body = json::object(response.body);
    if (!body || !body->value("rates"_L1).isObject())
        return Fetched<Rates>::failure(FetchFailure::undecodable());
    Rates rates;
    const auto read = body->value("rates"_L1).toObject();
    for (auto each = read.begin(); each != read.end(); ++each)
        if (!currencyCode(each.key()).isEmpty() && isRate(each->toDouble()))
            rates[each.key()] = each->toDouble();
    if (rates.value(u"USD"_s) != 1) // they would be against another currency
        return Fetched<Rates>::failure(FetchFailure::undecodable());
    return rates;
}

QUrl ExchangeRates::source() {
    return QUrl(u"https://www.exchangerate-api.com"_s);
}

ExchangeRates::ExchangeRates(HttpClient& http, Clock& clock, SettingsStore& settings)
    : m_http(http), m_clock(clock), m_settings(settings), m_rates(settings.read<Rates>(ratesKey).value_or(Rates())) {
    m_rates.removeIf([](const auto& entry) { return !isRate(entry.value()); });
}

void ExchangeRates::refresh(QDate today, std::function<void()> changed) {
    const bool isOfToday = !m_rates.isEmpty() && m_settings.read<QString>(dayKey) == today.toString(Qt::ISODate);
    if (isOfToday || (m_notBefore && m_clock.continuousNow() < *m_notBefore))
        return;
    m_request = exchange<Rates>(m_http, ratesRequest(), readRates,
                                [this, today, changed = std::move(changed)](const Fetched<Rates>& fetched) {
                                    if (!fetched) {
                                        if (const auto pause = fetched.error().retryAfter)
                                            m_notBefore = m_clock.continuousNow() + *pause;
                                        return;
                                    }
                                    m_rates = *fetched;
                                    m_settings.set(ratesKey, m_rates);
                                    m_settings.set(dayKey, today.toString(Qt::ISODate));
                                    changed();
                                });
}

} // namespace fendrel
