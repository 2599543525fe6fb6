#include "Platform/Shared/HttpExchange.h"

#include <QMetaEnum>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QSslError>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QNetworkRequest networkRequest(const HttpRequest& request, const QSslConfiguration* security) {
    QNetworkRequest prepared(request.url);
    prepared.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    prepared.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    prepared.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    prepared.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    prepared.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    prepared.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    // Our own limit is exact; this one ends a small answer that unpacks without end before it holds the main
    // thread up.
    prepared.setDecompressedSafetyCheckThreshold(request.sizeLimit);
    for (const auto& [name, value] : request.headers)
        prepared.setRawHeader(name, value);
    if (security)
        prepared.setSslConfiguration(*security);
    return prepared;
}

HttpHeaders headersOf(const QNetworkReply& reply) {
    HttpHeaders headers;
    for (const auto& [name, value] : reply.rawHeaderPairs())
        headers.emplaceBack(name.toLower(), value);
    return headers;
}

/// Whether the server has answered, whatever its status says. The body of a status from 400 on may be cut off.
bool isAnswered(const QNetworkReply& reply, int status) {
    const auto error = reply.error();
    if (status >= 400) // the toolkit counts these as errors, with codes above those of the transport
        return error >= QNetworkReply::ContentAccessDenied;
    return status != 0 && error == QNetworkReply::NoError;
}

} // namespace

void HttpExchange::Aborter::operator()(QNetworkReply* reply) const {
    reply->abort();
    reply->deleteLater(); // it may be its own signal that ends it
}

HttpExchange::HttpExchange(QNetworkAccessManager& manager, Clock& clock, const HttpRequest& request,
                           const QSslConfiguration* security, Done done)
    : m_done(std::move(done)),
      m_host(request.url.host()),
      m_sizeLimit(request.sizeLimit),
      m_reply(manager.sendCustomRequest(networkRequest(request, security), request.method, request.body)),
      m_deadline(clock.after(request.timeout, [this] { fail(HttpError::Kind::timedOut, u"no answer in time"_s); })) {
    auto* const reply = m_reply.get();
    // Without this a fast server could fill the memory between two reads.
    reply->setReadBufferSize(qint64{256} * 1024);
    QObject::connect(reply, &QNetworkReply::readyRead, &m_context, [this] { read(); });
    QObject::connect(reply, &QNetworkReply::sslErrors, &m_context, [this](const QList<QSslError>& errors) {
        if (!errors.isEmpty())
            m_certificateError = errors.first().errorString();
    });
    QObject::connect(reply, &QNetworkReply::finished, &m_context, [this] { finish(); });
}

void HttpExchange::read() {
    m_body += m_reply->read(m_sizeLimit - m_body.size() + 1);
    if (m_body.size() > m_sizeLimit)
        fail(HttpError::Kind::tooLarge, u"more than %1 bytes"_s.arg(m_sizeLimit));
}

void HttpExchange::finish() {
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (isAnswered(*m_reply, status)) {
        m_deadline.reset();
        const auto done = std::exchange(m_done, {});
        done(HttpResponse{.status = status, .headers = headersOf(*m_reply), .body = std::move(m_body)});
    } else if (m_reply->error() == QNetworkReply::UnknownContentError) {
        fail(HttpError::Kind::tooLarge, u"does not unpack within %1 bytes"_s.arg(m_sizeLimit));
    } else if (!m_certificateError.isEmpty()) {
        fail(HttpError::Kind::unreachable, m_certificateError);
    } else {
        // The toolkit's own sentence can hold the whole address.
        const auto names = QMetaEnum::fromType<QNetworkReply::NetworkError>();
        fail(HttpError::Kind::unreachable, QString::fromLatin1(names.valueToKey(m_reply->error())));
    }
}

void HttpExchange::fail(HttpError::Kind kind, const QString& reason) {
    m_deadline.reset();
    QObject::disconnect(m_reply.get(), nullptr, &m_context, nullptr);
    const auto done = std::exchange(m_done, {});
    done(Outcome::failure({.kind = kind, .detail = m_host + u": "_s + reason}));
}

} // namespace fendrel
