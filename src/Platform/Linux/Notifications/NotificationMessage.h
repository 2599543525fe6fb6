#pragma once

#include <QString>
#include <QVariantMap>

#include <variant>

/// What goes over the session bus when a program notifies. A program is named by its unique name on the bus.
namespace fendrel::notificationMessage {

/// A program asks the notification server.
struct Notify {
    QString sender{};
    quint64 serial{};
    QString appName{};
    quint32 replaces{}; ///< 0: nothing
    QString summary{};
    QString body{};      ///< with markup
    QVariantMap hints{}; ///< those of simple types
};

/// The server's answer to it.
struct Answer {
    QString receiver{};
    quint64 serial{}; ///< of what it answers
    quint32 id{};
};

/// A program asks the desktop portal.
struct AskPortal {
    QString sender{};
    QString id{};
};

/// The portal hands on to the desktop's part of it what a program asked.
struct FromPortal {
    QString application{}; ///< empty for a program that the portal doesn't know
    QString id{};
    QVariantMap content{};
};

/// A program asks a shell that understands GTK's own notifications.
struct AskShell {
    QString sender{};
    QString application{};
    QString id{};
    QVariantMap content{};
};

/// A name went to another program, or to nobody.
struct NewOwner {
    QString name{};
    QString owner{};
};

} // namespace fendrel::notificationMessage

namespace fendrel {

using NotificationMessage =
    std::variant<notificationMessage::Notify, notificationMessage::Answer, notificationMessage::AskPortal,
                 notificationMessage::FromPortal, notificationMessage::AskShell, notificationMessage::NewOwner>;

namespace notificationNames {
inline const QString server = QStringLiteral("org.freedesktop.Notifications");
inline const QString portalParts =
    QStringLiteral("org.freedesktop.impl.portal.desktop"); ///< what their names begin with
} // namespace notificationNames

} // namespace fendrel
