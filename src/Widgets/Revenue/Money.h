#pragma once

#include <QHash>
#include <QLocale>
#include <QString>

#include <optional>

namespace fendrel {

/// An amount, and the currency that it is in.
struct Money {
    qint64 amount{};    ///< in the minor units that the system knows of the currency; negative: it goes to the customer
    QString currency{}; ///< three capital letters
    bool operator==(const Money&) const = default;
};

/// Units of a currency for one US dollar. None: nothing can be converted.
using Rates = QHash<QString, double>;

/// How many digits the system's currency data gives after the decimal point; two where it doesn't know the currency.
int fractionDigits(const QString& currency);

double decimalAmount(const Money& money);
/// Rounded to the nearest; what is too large for the type becomes the largest, what is no number zero.
qint64 minorUnits(double amount, const QString& currency);
/// In US dollars; nothing without a rate.
std::optional<double> worth(const Money& money, const Rates& rates);

/// The sum, or where it is too large for the type the end that it went past.
qint64 saturatingSum(qint64 left, qint64 right);

/// As people there write it.
QString text(const Money& money, const QLocale& locale = QLocale());
/// In as few characters as the language knows for it, rounded: "€1.2K".
QString shortText(const Money& money, const QLocale& locale = QLocale());
QString shortText(qint64 count, const QLocale& locale = QLocale());

} // namespace fendrel
