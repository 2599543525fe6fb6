#include "Widgets/Weather/WeatherCode.h"

#include <QCoreApplication>

#include <algorithm>
#include <initializer_list>

namespace fendrel::weather {

using namespace Qt::StringLiterals;

namespace {

struct Row {
    std::initializer_list<int> codes{};
    const char* title{};
    QStringView day{};
    QStringView night{}; ///< empty: the same
};

const Row rows[] = {
    {{0}, QT_TRANSLATE_NOOP("Weather", "Clear"), u"sun.max.fill", u"moon.stars.fill"},
    {{1}, QT_TRANSLATE_NOOP("Weather", "Mostly clear"), u"sun.max.fill", u"moon.fill"},
    {{2}, QT_TRANSLATE_NOOP("Weather", "Partly cloudy"), u"cloud.sun.fill", u"cloud.moon.fill"},
    {{45, 48}, QT_TRANSLATE_NOOP("Weather", "Fog"), u"cloud.fog.fill", {}},
    {{51, 53, 55}, QT_TRANSLATE_NOOP("Weather", "Drizzle"), u"cloud.drizzle.fill", {}},
    {{56, 57, 66, 67}, QT_TRANSLATE_NOOP("Weather", "Freezing rain"), u"cloud.sleet.fill", {}},
    {{61, 63}, QT_TRANSLATE_NOOP("Weather", "Rain"), u"cloud.rain.fill", {}},
    {{65}, QT_TRANSLATE_NOOP("Weather", "Heavy rain"), u"cloud.heavyrain.fill", {}},
    {{71, 73, 77}, QT_TRANSLATE_NOOP("Weather", "Snow"), u"cloud.snow.fill", {}},
    {{75}, QT_TRANSLATE_NOOP("Weather", "Heavy snow"), u"snowflake", {}},
    {{80, 81}, QT_TRANSLATE_NOOP("Weather", "Showers"), u"cloud.sun.rain.fill", u"cloud.moon.rain.fill"},
    {{82}, QT_TRANSLATE_NOOP("Weather", "Heavy showers"), u"cloud.heavyrain.fill", {}},
    {{85, 86}, QT_TRANSLATE_NOOP("Weather", "Snow showers"), u"cloud.snow.fill", {}},
    {{95}, QT_TRANSLATE_NOOP("Weather", "Thunderstorm"), u"cloud.bolt.rain.fill", {}},
    {{96, 99}, QT_TRANSLATE_NOOP("Weather", "Storm with hail"), u"cloud.bolt.rain.fill", {}},
    {{}, QT_TRANSLATE_NOOP("Weather", "Cloudy"), u"cloud.fill", {}}, // 3, and what nobody knows
};

} // namespace

Appearance appearance(int code, bool isDay) {
    const auto* row = std::ranges::find_if(
        rows, [=](const Row& each) { return std::ranges::find(each.codes, code) != each.codes.end(); });
    if (row == std::end(rows))
        --row;
    const auto symbol = isDay || row->night.isEmpty() ? row->day : row->night;
    return {.title = QCoreApplication::translate("Weather", row->title), .symbol = symbol.toString()};
}

} // namespace fendrel::weather
