#pragma once

#include "Base/Handle.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace fendrel {

/// One question that the desktop portal puts to the user. Main thread; it deletes itself when it is over.
class PortalRequest : public QObject {
    Q_OBJECT
public:
    static const QString service;
    static const QString path;

    /// The portal's answer to a question. Nothing: it could not be asked, or ended before it answered.
    struct Response {
        uint code{}; ///< 0: answered, 1: the user cancelled, 2: ended in another way
        QVariantMap results{};
    };
    using Done = std::function<void(const std::optional<Response>&)>;

    /// Calls a portal's method, whose last argument are the options. `done` comes later, and not once the handle is
    /// dropped: that closes what the user is shown. No request outlives its owner.
    static Handle ask(QObject* owner, const QString& interface, const QString& method, QVariantList arguments,
                      QVariantMap options, Done done);

private:
    PortalRequest(QObject* owner, Done done);

    void call(const QDBusMessage& message);
    void listen(const QString& handle);
    void abandon();
    void close();
    void finish(const std::optional<Response>& response);
    Q_SLOT void responded(uint code, const QVariantMap& results);

    Done m_done;
    QDBusServiceWatcher m_portal;
    QString m_handle;          ///< the path of the portal's own object for it
    bool m_isAccepted = false; ///< the portal took it, and can be told to close it
    bool m_isWanted = true;    ///< nobody dropped the handle
};

} // namespace fendrel
