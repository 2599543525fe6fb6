#include "Modes/SiteName.h"

#include <QRegularExpression>

namespace fendrel {

using namespace Qt::StringLiterals;

QUrl webAddress(const QString& text, QUrl::ParsingMode mode) {
    QUrl address(text, mode);
    if (!address.host().isEmpty())
        return address;
    static const QRegularExpression dots(u"^([a-zA-Z]+://[^/?#]*?)\\.+((:\\d*)?([/?#]|$))"_s);
    return QUrl(QString(text).replace(dots, u"\\1\\2"_s), mode);
}

std::optional<QString> siteName(const QUrl& address) {
    QString host = address.host(QUrl::FullyEncoded).toLower();
    while (host.endsWith(u'.'))
        host.chop(1);
    if (host.startsWith("www."_L1))
        host.remove(0, 4);
    if (host.isEmpty())
        return {};
    return host;
}

std::optional<QString> siteName(const QString& typed) {
    const QString text = typed.trimmed();
    // At the beginning only: an address without a scheme can carry a whole one in its query.
    static const QRegularExpression scheme(u"^[a-zA-Z][a-zA-Z0-9+.-]*://"_s);
    return siteName(webAddress(text.contains(scheme) ? text : "http://"_L1 + text, QUrl::StrictMode));
}

} // namespace fendrel
