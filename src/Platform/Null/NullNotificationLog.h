#pragma once

#include "Ports/NotificationLog.h"

#include <QCoreApplication>

namespace fendrel {

class NullNotificationLog final : public NotificationLog {
public:
    QString databasePath() const override { return {}; }
    QString unavailableReason() const override {
        return QCoreApplication::translate("Notifications", "This system doesn't tell which notifications were shown.");
    }
    bool tellsChanges() const override { return true; }
};

} // namespace fendrel
