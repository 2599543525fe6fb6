#pragma once

#include "Platform/Linux/Banners/BannerKeeper.h"
#include "Ports/NotificationBanners.h"

#include <QDBusServiceWatcher>
#include <QObject>

namespace fendrel {

/// Follows which notification server runs. Asks without waiting and starts nothing.
class DesktopBanners : public QObject, public NotificationBanners {
    Q_OBJECT
public:
    explicit DesktopBanners(SettingsStore& store);

    void setQuiet(bool isQuiet) override { m_keeper.setQuiet(isQuiet); }

private:
    void ask();

    BannerKeeper m_keeper;
    QDBusServiceWatcher m_watcher;
    Handle m_question;
};

} // namespace fendrel
