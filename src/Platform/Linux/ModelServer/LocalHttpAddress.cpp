#include "Platform/Linux/ModelServer/LocalHttpAddress.h"

#include <QCoreApplication>
#include <QFile>
#include <QHostAddress>
#include <QUrl>

#include <sys/un.h>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

using Parsed = Result<LocalHttpAddress, QString>;

Parsed notAnAddress(const QString& text) {
    return Parsed::failure(
        QCoreApplication::translate("ModelServer",
                                    "“%1” is no address of a model server. An address looks like localhost:8080.")
            .arg(text));
}

Parsed elsewhere(const QString& text) {
    return Parsed::failure(QCoreApplication::translate(
                               "ModelServer", "Only a model server on this machine is asked, and “%1” is elsewhere.")
                               .arg(text));
}

Parsed ofSocket(const QString& text, const QString& path) {
    const QByteArray encoded = QFile::encodeName(path);
    if (!path.startsWith(u'/') || encoded.contains('\0') || encoded.size() >= qsizetype{sizeof sockaddr_un::sun_path})
        return notAnAddress(text);
    return LocalHttpAddress{.name = text, .endpoints = {{.authority = "localhost", .socket = encoded}}};
}

/// "localhost" is not looked up: somebody else may say what it means.
QByteArrayList loopbackAddresses(const QString& host) {
    if (host == "localhost"_L1)
        return {"127.0.0.1", "[::1]"};
    const QHostAddress address(host);
    if (address.protocol() == QAbstractSocket::IPv4Protocol && address.isLoopback())
        return {address.toString().toLatin1()};
    if (address == QHostAddress(QHostAddress::LocalHostIPv6))
        return {"[::1]"};
    return {};
}

} // namespace

Result<LocalHttpAddress, QString> LocalHttpAddress::parse(const QString& text) {
    const QString address = text.trimmed();
    if (address.startsWith(u'/'))
        return ofSocket(address, address);
    if (address.startsWith("unix:"_L1))
        return ofSocket(address, address.mid(5));

    const QUrl url(address.contains("://"_L1) ? address : u"http://"_s + address, QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty())
        return notAnAddress(address);
    const QByteArrayList hosts = loopbackAddresses(url.host());
    if (hosts.isEmpty())
        return elsewhere(address);
    // People copy the address that other programs want, which ends in the protocol's version.
    const bool isBare = QStringList{u""_s, u"/"_s, u"/v1"_s, u"/v1/"_s}.contains(url.path());
    if (url.scheme() != "http"_L1 || !url.userInfo().isEmpty() || !isBare || url.hasQuery() || url.hasFragment() ||
        url.port() <= 0)
        return notAnAddress(address);
    LocalHttpAddress parsed{.name = address};
    for (const QByteArray& host : hosts)
        parsed.endpoints.append({.authority = host + ':' + QByteArray::number(url.port())});
    return parsed;
}

} // namespace fendrel
