#include "Focus/HostManifests.h"

#include "Base/BridgeProtocol.h"
#include "Base/JsonFile.h"
#include "Focus/BridgeMessage.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace fendrel::hostManifests {

using namespace Qt::StringLiterals;

namespace {

// The extension's own names: the first follows from the key in its manifest, the second is written there.
const QString chromiumExtension = u"cieiclmhilimpdkclldjgodceioepkba"_s;
const QString mozillaExtension = u"companion@fendrel.org"_s;

QString hostName() {
    return bridge::text(bridge::hostName);
}

QString file(const BrowserHome& browser) {
    return browser.manifests + u'/' + hostName() + u".json"_s;
}

bool isOurs(const QString& path) {
    const auto content = JsonFile::read(path);
    return content && (*content)["name"_L1] == hostName();
}

} // namespace

QByteArray manifest(BrowserHome::Family family, const QString& relay) {
    QJsonObject object{
        {u"name"_s, hostName()}, {u"description"_s, u"Fendrel"_s}, {u"path"_s, relay}, {u"type"_s, u"stdio"_s}};
    if (family == BrowserHome::Family::mozilla)
        object.insert(u"allowed_extensions"_s, QJsonArray{mozillaExtension});
    else
        object.insert(u"allowed_origins"_s, QJsonArray{u"chrome-extension://%1/"_s.arg(chromiumExtension)});
    return QJsonDocument(object).toJson();
}

void install(const QList<BrowserHome>& browsers, const QString& relay, QSet<QString>& failed) {
    for (const BrowserHome& browser : browsers) {
        if (!QFileInfo(browser.data).isDir())
            continue;
        const QString path = file(browser);
        if (failed.contains(path))
            continue;
        const QByteArray wanted = manifest(browser.family, relay);
        QFile present(path);
        if (present.open(QIODevice::ReadOnly) && present.readAll() == wanted)
            continue;
        present.close();
        const bool isFree = !QFileInfo::exists(path) || isOurs(path) || JsonFile::keepAside(path);
        if (!isFree || !JsonFile::write(path, wanted))
            failed.insert(path);
    }
}

QStringList uninstall(const QList<BrowserHome>& browsers) {
    QStringList removed;
    for (const BrowserHome& browser : browsers) {
        if (const QString path = file(browser); isOurs(path) && QFile::remove(path))
            removed.append(path);
    }
    return removed;
}

} // namespace fendrel::hostManifests
