#include "UI/Widgets/CardText.h"
#include "UI/Widgets/Cards.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace fendrel {

using namespace Qt::StringLiterals;
using Tone = CardContent::Tone;

namespace {

/// Coins cost a fraction of a cent.
QString priceText(double price) {
    const double size = std::abs(price);
    return QLocale().toString(price, 'f', size >= 1 || size == 0 ? 2 : size >= 0.01 ? 4 : 8);
}

/// Nothing without a close to compare with.
std::optional<double> movePercent(const ticker::Quote& quote) {
    const auto move = quote.move();
    const double share = move && *quote.previousClose > 0 ? 100 * *move / *quote.previousClose : std::nan("");
    return std::isfinite(share) ? std::optional(share) : std::nullopt;
}

QString percentText(double percent) {
    const QString sign = percent > 0 ? u"+"_s : QString();
    //: A share in percent.
    return QCoreApplication::translate("Card", "%1%").arg(sign + QLocale().toString(percent, 'f', 2));
}

CardRow row(const ticker::Quote& quote) {
    const auto percent = movePercent(quote);
    const bool isSteady = !percent || std::abs(*percent) < 0.005; // as it is written
    return {.title = quote.symbol,
            .detail = priceText(quote.price),
            .value = percent ? percentText(isSteady ? 0 : *percent) : QString(),
            .tone = isSteady       ? Tone::neutral
                    : *percent > 0 ? Tone::good
                                   : Tone::bad,
            .points = card::scaled({quote.points.begin(), quote.points.end()}),
            .address = QUrl::fromEncoded("https://finance.yahoo.com/quote/" + QUrl::toPercentEncoding(quote.symbol))};
}

} // namespace

void describe(CardContent& card, const QList<ticker::Quote>& quotes) {
    for (const auto& quote : quotes)
        card.rows.append(QVariant::fromValue(row(quote)));
    const CardRow first = row(quotes.first());
    card.headline = first.detail;
    card.brief = first.value;
    card.caption = first.title;
    card.note = quotes.first().name;
    card.tone = first.tone;
    card.curve = first.points;
    card.address = first.address;
}

} // namespace fendrel
