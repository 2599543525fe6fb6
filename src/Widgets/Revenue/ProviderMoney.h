#pragma once

#include "Widgets/Revenue/Money.h"

#include <QJsonValue>

#include <optional>

namespace fendrel {

/// How many digits after the decimal point a provider's amounts in a currency have. The system's data may give others.
using ProviderDigits = int (*)(const QString& currency);

int isoDigits(const QString& currency); ///< by ISO 4217, which is meant where a provider says nothing
int stripeDigits(const QString& currency);

/// A currency's code in capitals; empty for what cannot be one.
QString currencyCode(const QJsonValue& value);

/// Nothing where an amount or a currency cannot be read, or the amount is so large that nobody can mean it.
std::optional<Money> providerMoney(const QJsonValue& amount, const QJsonValue& currency,
                                   ProviderDigits digits = isoDigits);

} // namespace fendrel
