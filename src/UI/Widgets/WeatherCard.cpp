#include "UI/Widgets/CardText.h"
#include "UI/Widgets/Cards.h"
#include "Widgets/Weather/WeatherCode.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QString degrees(double temperature) {
    const double rounded = std::clamp(temperature, -999.0, 999.0); // no place is so cold that it needs more room
    return QLocale().toString(qRound(rounded)) + u'°';
}

} // namespace

void describe(CardContent& card, const weather::Report& report, const weather::Place& place, WallTime now) {
    constexpr qsizetype most = 12; // hours
    for (const auto& hour : report.hours) {
        const bool isPast = hour.time + 1h <= now; // an old report has such
        if (isPast || card.rows.size() == most)
            continue;
        const auto look = weather::appearance(hour.code, hour.isDay);
        card.rows.append(QVariant::fromValue(
            CardRow{.title = card.rows.isEmpty() ? QCoreApplication::translate("Card", "Now") : card::hour(hour.time),
                    .detail = look.title,
                    .value = degrees(card.rows.isEmpty() ? report.temperature : hour.temperature),
                    .symbol = look.symbol}));
    }
    const auto look = weather::appearance(report.code, report.isDay);
    card.headline = degrees(report.temperature);
    card.caption = place.name;
    card.credit = u"Open-Meteo"_s;
    card.symbol = look.symbol;
    //: Weather of now, the day's highest and lowest temperature.
    card.note =
        QCoreApplication::translate("Card", "%1, %2 to %3").arg(look.title, degrees(report.low), degrees(report.high));
}

} // namespace fendrel
