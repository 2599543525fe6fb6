#pragma once

#include "Platform/Linux/Banners/BannerSwitch.h"
#include "Ports/SettingsStore.h"

#include <QList>
#include <QMap>

#include <memory>
#include <vector>

namespace fendrel {

/// Quiets the banners of the notification server that runs, and gives back exactly what was there: what the user set
/// meanwhile stays as it is. What was there is in the settings for as long as it is not given back, so that the next
/// start does it when this one cannot.
class BannerKeeper {
public:
    using Switches = std::vector<std::unique_ptr<BannerSwitch>>;

    BannerKeeper(SettingsStore& store, Switches switches);
    ~BannerKeeper(); ///< gives back, for which it waits half a second at most
    BannerKeeper(const BannerKeeper&) = delete;
    BannerKeeper& operator=(const BannerKeeper&) = delete;

    void setQuiet(bool isQuiet);
    /// A notification server of this name came, or (empty) the one that ran is gone.
    void setServer(const QString& name);

private:
    void queue(const QString& server);
    void queueSaved();
    void proceed();
    void settle(BannerSwitch& banners, std::optional<Banners> now);
    void finish();
    void save(const QString& server, std::optional<Banners> before);

    SettingsStore& m_store;
    Switches m_switches;
    QMap<QString, Banners> m_saved; ///< server -> what was there before we quieted it
    QString m_server;
    bool m_isQuiet = false;
    QList<BannerSwitch*> m_queue; ///< those that may not be as they should
    WaitUntil m_deadline;
    bool m_isBusy = false;
    Handle m_reading;
    Handle m_writing;
};

} // namespace fendrel
