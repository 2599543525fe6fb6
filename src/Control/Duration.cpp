#include "Control/Duration.h"

#include <QRegularExpression>

namespace fendrel::control {

using namespace Qt::StringLiterals;

std::optional<Seconds> parseDuration(const QString& text) {
    static const QRegularExpression form(u"^(?:(\\d{1,3})h)?(?:(\\d{1,4})m)?(?:(\\d{1,6})s)?$"_s);
    const auto match = form.match(text);
    if (!match.hasMatch())
        return {};
    const Seconds length = std::chrono::hours(match.capturedView(1).toInt()) +
                           std::chrono::minutes(match.capturedView(2).toInt()) +
                           std::chrono::seconds(match.capturedView(3).toInt());
    if (length <= Seconds{})
        return {};
    return length;
}

} // namespace fendrel::control
