#pragma once

#include "Platform/Linux/Applications/ApplicationCatalog.h"
#include "Platform/Linux/Applications/ProcessFacts.h"
#include "Platform/Linux/Notifications/NotificationRoutes.h"

#include <QSet>

#include <memory>

namespace fendrel {

/// Whose notification it is. Main thread.
class NotificationSenders {
public:
    explicit NotificationSenders(std::shared_ptr<const ApplicationCatalog> catalog);

    /// The identifier, the same as that of the application's windows.
    QString application(const ShownNotification& notification, const ProcessFacts& process) const;

    /// What a service of the system calls critical: a battery that runs empty, a disk that fails.
    bool isCritical(const ShownNotification& notification, const ProcessFacts& process) const;

private:
    const DesktopEntry* entryOf(const ShownNotification& notification, const ProcessFacts& process) const;
    const DesktopEntry* entryNamed(const QString& name) const;

    std::shared_ptr<const ApplicationCatalog> m_catalog;
    QSet<QString> m_services; ///< programs and desktop entries
};

} // namespace fendrel
