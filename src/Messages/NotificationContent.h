#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace fendrel {

/// What a record of the log says.
struct NotificationContent {
    QString title{};
    QString subtitle{};
    QString body{};
    bool isCritical{}; ///< a service of the system calls it so
    bool operator==(const NotificationContent&) const = default;
};

/// Nothing for what is no record, or has neither title nor body.
std::optional<NotificationContent> request(QByteArrayView data);

} // namespace fendrel
