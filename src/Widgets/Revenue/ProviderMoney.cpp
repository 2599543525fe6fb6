#include "Widgets/Revenue/ProviderMoney.h"

#include "Widgets/Json.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Ten million millions of dollars. A hundred thousand of them do not even add up to what the type holds.
constexpr qint64 largestAmount = 1'000'000'000'000'000;

qint64 rescaled(qint64 amount, int from, int to) {
    for (; from < to; ++from)
        amount *= 10;
    qint64 divisor = 1;
    for (; from > to; --from)
        divisor *= 10;
    const qint64 half = amount < 0 ? -divisor / 2 : divisor / 2;
    return (amount + half) / divisor;
}

} // namespace

int isoDigits(const QString& currency) {
    static const QHash<QString, int> exceptions = [] {
        QHash<QString, int> table;
        for (const auto& code : u"BIF CLP DJF GNF ISK JPY KMF KRW PYG RWF UGX UYI VND VUV XAF XOF XPF"_s.split(u' '))
            table[code] = 0;
        for (const auto& code : u"BHD IQD JOD KWD LYD OMR TND"_s.split(u' '))
            table[code] = 3;
        for (const auto& code : u"CLF UYW"_s.split(u' '))
            table[code] = 4;
        return table;
    }();
    return exceptions.value(currency, 2);
}

int stripeDigits(const QString& currency) {
    if (currency == "MGA"_L1)
        return 0;
    if (currency == "ISK"_L1 || currency == "UGX"_L1)
        return 2;
    return isoDigits(currency);
}

QString currencyCode(const QJsonValue& value) {
    const QString code = value.toString().toUpper();
    const bool isCode = code.size() == 3 && std::ranges::all_of(code, [](QChar c) { return c >= u'A' && c <= u'Z'; });
    return isCode ? code : QString();
}

std::optional<Money> providerMoney(const QJsonValue& amount, const QJsonValue& currency, ProviderDigits digits) {
    const auto units = json::integer(amount);
    const QString code = currencyCode(currency);
    if (!units || *units > largestAmount || *units < -largestAmount || code.isEmpty())
        return {};
    return Money{.amount = rescaled(*units, digits(code), fractionDigits(code)), .currency = code};
}

} // namespace fendrel
