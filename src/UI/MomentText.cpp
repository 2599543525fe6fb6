#include "UI/MomentText.h"

#include <QCoreApplication>
#include <QLocale>

namespace fendrel {

using namespace Qt::StringLiterals;

QString momentText(WallTime moment, WallTime now) {
    const QDateTime local = toDateTime(moment).toLocalTime();
    const qint64 days = local.date().daysTo(toDateTime(now).toLocalTime().date());
    const QLocale locale;
    // Where no country is set, the short form has seconds.
    const QString time = locale.toString(local.time(), locale.timeFormat(QLocale::ShortFormat).remove(u":ss"_s));
    if (days == 0)
        return time;
    if (days == 1)
        return QCoreApplication::translate("MomentText", "Yesterday, %1").arg(time);
    if (days > 1 && days < 7)
        return locale.toString(local.date(), u"ddd "_s) + time;
    return locale.toString(local.date(), QLocale::ShortFormat);
}

} // namespace fendrel
