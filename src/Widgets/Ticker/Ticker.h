#pragma once

#include "Ports/SettingsStore.h"
#include "Widgets/Feed.h"
#include "Widgets/Ticker/QuoteChart.h"

#include <QStringList>

#include <map>

namespace fendrel {

/// Stocks, indexes and coins that the user picked.
class Ticker final : public Feed {
    Q_OBJECT
public:
    static constexpr qsizetype mostSymbols = 20;
    static const QString settingKey; ///< of the symbols

    Ticker(Clock& clock, HttpClient& http, SettingsStore& settings);

    QStringList symbols() const;
    /// White space, empty ones and repetitions are left out, and what is too much for a card.
    void setSymbols(const QStringList& symbols);
    /// Takes over symbols that were changed in the settings themselves.
    void reload();
    QList<ticker::Quote> quotes() const; ///< in the order of the symbols; those that could not be had are left out

protected:
    Handle fetch() override;
    QString text(const FetchFailure& failure) const override;

private:
    void ask();
    void answered(const QString& symbol, const Fetched<std::optional<ticker::Quote>>& fetched);

    SettingsStore& m_settings;
    std::map<QString, ticker::Quote> m_quotes;
    std::map<QString, Handle> m_asked; ///< by symbol
    QStringList m_missing;             ///< of these answers
    std::optional<FetchFailure> m_failure;
};

} // namespace fendrel
