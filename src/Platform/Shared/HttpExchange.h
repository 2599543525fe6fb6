#pragma once

#include "Ports/Clock.h"
#include "Ports/HttpClient.h"

#include <QNetworkReply>
#include <QObject>

#include <memory>

class QNetworkAccessManager;
class QSslConfiguration;

namespace fendrel {

/// One request under way. Destroying it aborts it, and no callback follows.
class HttpExchange {
public:
    using Outcome = Result<HttpResponse, HttpError>;
    using Done = std::function<void(const Outcome&)>;

    /// `security` may be null: the system's. `done` runs once, from the event loop. It may destroy this.
    HttpExchange(QNetworkAccessManager& manager, Clock& clock, const HttpRequest& request,
                 const QSslConfiguration* security, Done done);

private:
    struct Aborter {
        void operator()(QNetworkReply* reply) const;
    };

    void read();
    void finish();
    void fail(HttpError::Kind kind, const QString& reason);

    Done m_done;
    QString m_host;
    qint64 m_sizeLimit{};
    QByteArray m_body;
    QString m_certificateError;
    std::unique_ptr<QNetworkReply, Aborter> m_reply;
    Handle m_deadline;
    QObject m_context; ///< receives the reply's signals until this goes
};

} // namespace fendrel
