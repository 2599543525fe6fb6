#include "Widgets/Ticker/Ticker.h"

#include "Widgets/Exchange.h"

#include <QCoreApplication>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QStringList tidy(const QStringList& symbols) {
    QStringList kept;
    for (const auto& each : symbols) {
        const QString symbol = each.trimmed().toUpper();
        const bool isPath = symbol.count(u'.') == symbol.size(); // none at all, or the way out of the address
        if (!isPath && !kept.contains(symbol) && kept.size() < Ticker::mostSymbols)
            kept.append(symbol);
    }
    return kept;
}

/// Of several failures the one counts that says when to ask again.
int urgency(const FetchFailure& failure) {
    if (failure.retryAfter)
        return 2;
    return failure.kind == FetchFailure::Kind::unreachable ? 1 : 0;
}

} // namespace

const QString Ticker::settingKey = u"tickerSymbols"_s;

Ticker::Ticker(Clock& clock, HttpClient& http, SettingsStore& settings)
    : Feed(clock, http, {.interval = std::chrono::seconds(300), .tolerance = std::chrono::seconds(30)}),
      m_settings(settings) {}

QStringList Ticker::symbols() const {
    return tidy(m_settings.read<QStringList>(settingKey).value_or(QStringList()));
}

void Ticker::setSymbols(const QStringList& symbols) {
    m_settings.set(settingKey, tidy(symbols));
    reload();
}

void Ticker::reload() {
    if (isActive())
        refresh(true);
    Q_EMIT changed();
}

QList<ticker::Quote> Ticker::quotes() const {
    QList<ticker::Quote> known;
    for (const auto& symbol : symbols())
        if (const auto found = m_quotes.find(symbol); found != m_quotes.end())
            known.append(found->second);
    return known;
}

QString Ticker::text(const FetchFailure& failure) const {
    return failure.error.message.isEmpty() ? message(failure, u"Yahoo Finance"_s) : failure.error.message;
}

Handle Ticker::fetch() {
    m_asked.clear();
    m_missing.clear();
    m_failure.reset();
    return clock().after({}, [this] {
        if (symbols().isEmpty())
            clear();
        else if (begin())
            ask();
    });
}

void Ticker::ask() {
    for (const auto& symbol : symbols()) {
        const auto read = [symbol](const HttpResponse& response) { return ticker::readChart(response, symbol); };
        m_asked[symbol] =
            exchange<std::optional<ticker::Quote>>(http(), ticker::chartRequest(symbol), read,
                                                   [this, symbol](const auto& fetched) { answered(symbol, fetched); });
    }
}

void Ticker::answered(const QString& symbol, const Fetched<std::optional<ticker::Quote>>& fetched) {
    m_asked.erase(symbol);
    if (fetched && *fetched) {
        m_quotes[symbol] = **fetched;
    } else {
        m_missing.append(symbol);
        if (fetched)
            m_quotes.erase(symbol); // what failed otherwise is still right, if old
        const FetchFailure failure = fetched ? FetchFailure::told({}) : fetched.error();
        if (!m_failure || urgency(failure) > urgency(*m_failure))
            m_failure = failure;
    }
    if (!m_asked.empty())
        return;
    if (!m_failure)
        return succeed();
    QStringList missing = symbols();
    missing.removeIf([this](const QString& each) { return !m_missing.contains(each); });
    auto failure = *m_failure;
    failure.error.message = QCoreApplication::translate("Feed", "Couldn't load %1").arg(missing.join(u", "_s));
    fail(failure);
}

} // namespace fendrel
