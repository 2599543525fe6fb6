#pragma once

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>

namespace fendrel {

using namespace Qt::StringLiterals;

/// An authority that only those know who are told of it. Its keys are made when it is, and go with it.
class TestAuthority {
public:
    TestAuthority() { request({u"/CN=Test authority"_s, u"-addext"_s, u"keyUsage=keyCertSign"_s}, u"authority"_s); }

    /// For a client that trusts it, and nobody else.
    QSslConfiguration trusted() const {
        auto configuration = QSslConfiguration::defaultConfiguration();
        configuration.setCaCertificates({QSslCertificate(content(u"authority.pem"_s))});
        return configuration;
    }
    /// For a server that says it is this host.
    QSslConfiguration certified(const QString& host) const {
        request({u"/CN="_s + host, u"-addext"_s, u"subjectAltName=DNS:"_s + host, u"-CA"_s, path(u"authority.pem"_s),
                 u"-CAkey"_s, path(u"authority.key"_s)},
                u"server"_s);
        auto configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(QSslCertificate(content(u"server.pem"_s)));
        configuration.setPrivateKey(QSslKey(content(u"server.key"_s), QSsl::Ec));
        return configuration;
    }

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void request(const QStringList& subject, const QString& name) const {
        QProcess openssl;
        openssl.start(u"openssl"_s,
                      QStringList{u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                                  u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-days"_s, u"2"_s, u"-keyout"_s,
                                  path(name + u".key"_s), u"-out"_s, path(name + u".pem"_s), u"-subj"_s} +
                          subject);
        if (!openssl.waitForFinished() || openssl.exitCode() != 0)
            qFatal("openssl made no certificate: %s", openssl.readAllStandardError().constData());
    }

    QTemporaryDir m_folder;
};

} // namespace fendrel
