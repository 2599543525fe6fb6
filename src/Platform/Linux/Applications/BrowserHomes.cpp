#include "Platform/Linux/Applications/BrowserHomes.h"

#include "Platform/Linux/Tables/DataTable.h"

#include <QJsonArray>
#include <QJsonObject>

namespace fendrel {

using namespace Qt::StringLiterals;

QList<BrowserHome> browserHomes(const QString& home, const QString& config) {
    QList<BrowserHome> homes;
    for (const auto entry : dataTable(u"Browsers"_s).array()) {
        const QJsonObject browser = entry.toObject();
        const bool isMozilla = browser[u"family"] == "mozilla"_L1;
        const QString data = (browser[u"below"] == "home"_L1 ? home : config) + u'/' + browser[u"data"].toString();
        // A browser that moved its profiles may still look for manifests below the home folder.
        const QString manifests = browser.contains("manifests"_L1)
                                      ? home + u'/' + browser[u"manifests"].toString()
                                      : data + (isMozilla ? u"/native-messaging-hosts"_s : u"/NativeMessagingHosts"_s);
        homes.append({.data = data,
                      .manifests = manifests,
                      .family = isMozilla ? BrowserHome::Family::mozilla : BrowserHome::Family::chromium,
                      .name = browser[u"name"].toString(),
                      .bundleID = browser[u"bundleID"].toString()});
    }
    return homes;
}

} // namespace fendrel
