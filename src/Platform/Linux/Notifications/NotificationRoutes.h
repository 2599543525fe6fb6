#pragma once

#include "Platform/Linux/Notifications/NotificationMessage.h"

#include <QHash>
#include <QList>

#include <optional>

namespace fendrel {

/// A notification that is worth a record.
struct ShownNotification {
    qint64 number{};         ///< one that replaces another has its number
    QString sender{};        ///< unique name on the bus; empty when unknown
    QString declaredEntry{}; ///< id of the desktop entry that the program names, or the portal
    QString appName{};
    qint64 declaredProcess{}; ///< as the program says it; 0 when it doesn't
    QString category{};
    bool isUrgent{};
    QString title{}; ///< plain text, as `body`
    QString body{};
    bool operator==(const ShownNotification&) const = default;
};

/// Tells each notification once, whichever way it took to the screen, from what goes over the bus in that order.
/// What only passes by (progress, the volume's bubble) is left out.
class NotificationRoutes {
public:
    std::optional<ShownNotification> take(const NotificationMessage& message);

private:
    using Key = std::pair<QString, QString>; ///< application, and its own name for the notification
    using Call = std::pair<QString, quint64>;

    std::optional<ShownNotification> taken(const notificationMessage::Notify& message);
    std::optional<ShownNotification> taken(const notificationMessage::Answer& message);
    std::optional<ShownNotification> taken(const notificationMessage::AskPortal& message);
    std::optional<ShownNotification> taken(const notificationMessage::FromPortal& message);
    std::optional<ShownNotification> taken(const notificationMessage::AskShell& message);
    std::optional<ShownNotification> taken(const notificationMessage::NewOwner& message);
    std::optional<ShownNotification> named(const QString& sender, const QString& application, const QString& id,
                                           const QVariantMap& content);
    bool isPortalPart(const QString& sender) const;
    void forgetOld();

    qint64 m_last = 0;
    QHash<Call, qint64> m_unanswered;
    QHash<quint32, qint64> m_byServerID;
    QHash<Key, qint64> m_byName;
    QList<notificationMessage::AskPortal> m_atPortal; ///< not handed on yet, the newest last
    QHash<QString, QString> m_portalParts;            ///< name -> owner
};

} // namespace fendrel
