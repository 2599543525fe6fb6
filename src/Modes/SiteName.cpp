#include "Modes/SiteName.h"

#include <QRegularExpression>
#include <QUrl>

namespace fendrel {

using namespace Qt::StringLiterals;

std::optional<QString> siteName(const QString& typed) {
    const QString text = typed.trimmed();
    // At the beginning only: an address without a scheme can carry a whole one in its query.
    static const QRegularExpression scheme(u"^[a-zA-Z][a-zA-Z0-9+.-]*://"_s);
    const QUrl address(text.contains(scheme) ? text : "http://"_L1 + text, QUrl::StrictMode);
    QString host = address.host(QUrl::FullyEncoded).toLower();
    while (host.endsWith(u'.'))
        host.chop(1);
    if (host.startsWith("www."_L1))
        host.remove(0, 4);
    if (host.isEmpty())
        return {};
    return host;
}

} // namespace fendrel
