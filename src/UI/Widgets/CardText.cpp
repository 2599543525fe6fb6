#include "UI/Widgets/CardText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <cmath>

namespace fendrel::card {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

QString age(WallTime moment, WallTime now) {
    const auto passed = now - moment;
    const auto said = [passed](const char* text, auto unit) {
        return QCoreApplication::translate("Card", text).arg(QLocale().toString(qint64(passed / unit)));
    };
    if (passed < 1min)
        return QCoreApplication::translate("Card", "now");
    if (passed < 1h)
        return said(QT_TRANSLATE_NOOP("Card", "%1 min"), 1min);
    if (passed < 24h)
        return said(QT_TRANSLATE_NOOP("Card", "%1 h"), 1h);
    return said(QT_TRANSLATE_NOOP("Card", "%1 d"), 24h);
}

QString joined(const QStringList& parts) {
    QStringList said = parts;
    said.removeAll(QString());
    return said.join(u" · "_s);
}

/// The user's country counts hours to twelve.
static bool hasHalves() {
    return QLocale().timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive);
}

QString hour(WallTime time) {
    return QLocale().toString(toDateTime(time).toLocalTime().time(), hasHalves() ? u"h AP"_s : u"HH"_s);
}

QString clock(WallTime time) {
    return QLocale().toString(toDateTime(time).toLocalTime().time(), QLocale::ShortFormat);
}

QString shortClock(WallTime time) {
    return hasHalves() && toDateTime(time).toLocalTime().time().minute() == 0 ? hour(time) : clock(time);
}

qreal shareOfDay(WallTime now) {
    const QDate day = toDateTime(now).toLocalTime().date();
    const auto zone = QTimeZone::systemTimeZone();
    const auto start = toWallTime(day.startOfDay(zone));
    const auto end = toWallTime(day.addDays(1).startOfDay(zone));
    return std::clamp(std::chrono::duration<double>(now - start) / std::chrono::duration<double>(end - start), 0.0,
                      1.0);
}

QList<qreal> dayCurve(const QList<qint64>& cumulative) {
    if (std::ranges::all_of(cumulative, [](qint64 each) { return each == 0; }))
        return {};
    std::vector<double> values(cumulative.begin(), cumulative.end());
    values.push_back(0);
    auto points = scaled(values);
    points.removeLast();
    return points;
}

QList<qreal> scaled(const std::vector<double>& values) {
    if (values.empty())
        return {};
    const auto [least, most] = std::ranges::minmax(values);
    const double range = most - least;
    QList<qreal> points;
    for (const double value : values)
        points.append(std::isfinite(range) && range > 0 ? (value - least) / range : 0.5);
    return points;
}

} // namespace fendrel::card
