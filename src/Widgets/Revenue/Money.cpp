#include "Widgets/Revenue/Money.h"

#include <unicode/ucurr.h>
#include <unicode/unumberformatter.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>

// Qt tells neither the digits of a currency nor what another country's is called. It reads both from ICU itself.

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

template<auto close>
struct Closer {
    template<class Type>
    void operator()(Type* handle) const {
        close(handle);
    }
};
using Formatter = std::unique_ptr<UNumberFormatter, Closer<unumf_close>>;
using Formatted = std::unique_ptr<UFormattedNumber, Closer<unumf_closeResult>>;

/// As a skeleton of ICU's says; nothing where it doesn't understand one of them.
std::optional<QString> formatted(const QByteArray& number, const QString& skeleton, const QLocale& locale) {
    UErrorCode error = U_ZERO_ERROR;
    const Formatter formatter(unumf_openForSkeletonAndLocale(skeleton.toStdU16String().c_str(), -1,
                                                             locale.bcp47Name().toLatin1().constData(), &error));
    const Formatted result(unumf_openResult(&error));
    unumf_formatDecimal(formatter.get(), number.constData(), static_cast<int32_t>(number.size()), result.get(), &error);
    std::u16string text(128, u'\0');
    const int32_t length = unumf_resultToString(result.get(), text.data(), static_cast<int32_t>(text.size()), &error);
    return U_FAILURE(error) ? std::nullopt : std::optional(QString::fromUtf16(text.data(), length));
}

/// Written as a decimal number, so that no digit of a large amount is lost on the way.
QByteArray exactNumber(const Money& money) {
    return QByteArray::number(money.amount) + "E-" + QByteArray::number(fractionDigits(money.currency));
}

QString plainText(const Money& money, const QLocale& locale) {
    return money.currency + u' ' + locale.toString(decimalAmount(money), 'f', fractionDigits(money.currency));
}

} // namespace

int fractionDigits(const QString& currency) {
    UErrorCode error = U_ZERO_ERROR;
    const int digits = ucurr_getDefaultFractionDigits(currency.toStdU16String().c_str(), &error);
    return U_SUCCESS(error) ? digits : 2;
}

double decimalAmount(const Money& money) {
    return static_cast<double>(money.amount) / std::pow(10, fractionDigits(money.currency));
}

qint64 minorUnits(double amount, const QString& currency) {
    constexpr double limit = 9223372036854775808.0; // two to the 63rd, the first that doesn't fit
    const double units = std::round(amount * std::pow(10, fractionDigits(currency)));
    if (units >= limit)
        return std::numeric_limits<qint64>::max();
    if (units < -limit)
        return std::numeric_limits<qint64>::min();
    return std::isnan(units) ? 0 : static_cast<qint64>(units);
}

std::optional<double> worth(const Money& money, const Rates& rates) {
    const auto rate = rates.constFind(money.currency);
    return rate == rates.constEnd() ? std::nullopt : std::optional(decimalAmount(money) / *rate);
}

qint64 saturatingSum(qint64 left, qint64 right) {
    qint64 sum = 0;
    if (!__builtin_add_overflow(left, right, &sum))
        return sum;
    return right > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
}

QString text(const Money& money, const QLocale& locale) {
    return formatted(exactNumber(money), u"currency/"_s + money.currency, locale).value_or(plainText(money, locale));
}

QString shortText(const Money& money, const QLocale& locale) {
    return formatted(exactNumber(money), u"compact-short currency/"_s + money.currency, locale)
        .value_or(plainText(money, locale));
}

QString shortText(qint64 count, const QLocale& locale) {
    return formatted(QByteArray::number(count), u"compact-short"_s, locale).value_or(locale.toString(count));
}

} // namespace fendrel
