#include "Widgets/Ticker/Ticker.h"

#include "Widgets/Exchange.h"

#include <QCoreApplication>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString symbolsKey = u"tickerSymbols"_s;

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

} // namespace

Ticker::Ticker(Clock& clock, HttpClient& http, SettingsStore& settings)
    : Feed(clock, http, {.interval = std::chrono::seconds(300), .tolerance = std::chrono::seconds(30)}),
      m_settings(settings) {}

QStringList Ticker::symbols() const {
    return tidy(m_settings.read<QStringList>(symbolsKey).value_or(QStringList()));
}

void Ticker::setSymbols(const QStringList& symbols) {
    m_settings.set(symbolsKey, tidy(symbols));
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
        m_asked[symbol] = exchange<ticker::Quote>(http(), ticker::chartRequest(symbol), read,
                                                  [this, symbol](const auto& fetched) { answered(symbol, fetched); });
    }
}

void Ticker::answered(const QString& symbol, const Fetched<ticker::Quote>& fetched) {
    m_asked.erase(symbol);
    if (fetched) {
        m_quotes[symbol] = *fetched;
    } else {
        const auto& failure = fetched.error();
        m_missing.append(symbol);
        // What could not be asked for is still right; what was answered otherwise is no more.
        const bool isAnswer = failure.kind != FetchFailure::Kind::unreachable && !failure.retryAfter;
        if (isAnswer)
            m_quotes.erase(symbol);
        if (!m_failure || !isAnswer)
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
