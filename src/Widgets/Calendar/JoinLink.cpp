#include "Widgets/Calendar/JoinLink.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array hosts{
    "zoom.us"_L1,     "meet.google.com"_L1,    "teams.microsoft.com"_L1, "teams.live.com"_L1,
    "webex.com"_L1,   "facetime.apple.com"_L1, "whereby.com"_L1,         "around.co"_L1,
    "meet.jit.si"_L1, "chime.aws"_L1,          "gotomeeting.com"_L1,
};

/// In HTML an ampersand is written as an entity. Quotes and brackets may be, too, and then end the link as well.
QString unescaped(QString link) {
    static const QRegularExpression end(u"&(quot|apos|lt|gt|nbsp|#0*(34|39|60|62|160)|#x0*(22|27|3c|3e|a0));"_s,
                                        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression ampersand(u"&(amp|#0*38|#x0*26);"_s, QRegularExpression::CaseInsensitiveOption);
    link.truncate(end.match(link).hasMatch() ? end.match(link).capturedStart() : link.size());
    return link.replace(ampersand, u"&"_s);
}

std::optional<QUrl> callIn(const QString& text) {
    static const QRegularExpression link(uR"(https?://[^\s"'<>\\^`{|}]+)"_s, QRegularExpression::CaseInsensitiveOption);
    for (auto matches = link.globalMatch(text); matches.hasNext();) {
        QString found = unescaped(matches.next().captured());
        while (!found.isEmpty() && u".,;:!?)]"_s.contains(found.back())) // the sentence's
            found.chop(1);
        const QUrl url(found, QUrl::StrictMode);
        if (url.isValid() && isCall(url.host()))
            return url;
    }
    return {};
}

} // namespace

bool isCall(const QString& host) {
    const QString name = host.toLower();
    return std::ranges::any_of(hosts, [&name](QLatin1StringView known) {
        return name == known || (name.endsWith(known) && name[name.size() - known.size() - 1] == u'.');
    });
}

std::optional<QUrl> joinURL(const CalendarEvent& event) {
    for (const QString& text : {event.url, event.location, event.notes}) {
        if (const auto url = callIn(text))
            return url;
    }
    return {};
}

} // namespace fendrel
