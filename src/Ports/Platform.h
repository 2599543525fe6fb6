#pragma once

#include "Base/Worker.h"
#include "Ports/Accessibility.h"
#include "Ports/Applications.h"
#include "Ports/Badges.h"
#include "Ports/CalendarStore.h"
#include "Ports/Clock.h"
#include "Ports/Displays.h"
#include "Ports/Documents.h"
#include "Ports/FileChooser.h"
#include "Ports/HotKeys.h"
#include "Ports/HttpClient.h"
#include "Ports/IdleTime.h"
#include "Ports/LanguageModel.h"
#include "Ports/LoginItem.h"
#include "Ports/NotificationBanners.h"
#include "Ports/NotificationLog.h"
#include "Ports/Panels.h"
#include "Ports/PointerGuard.h"
#include "Ports/Remedies.h"
#include "Ports/SecretStore.h"
#include "Ports/SettingsStore.h"
#include "Ports/Shell.h"
#include "Ports/SoundPlayer.h"
#include "Ports/StatusArea.h"
#include "Ports/SystemDock.h"
#include "Ports/SystemLook.h"
#include "Ports/Trash.h"
#include "Ports/WindowPreviews.h"

#include <functional>
#include <memory>

namespace fendrel {

/// The user's folders that belong to Fendrel, each owner-only. They may not exist yet.
struct Folders {
    QString data{};    ///< modes, learned answers, the sockets
    QString config{};  ///< the settings
    QString crashes{}; ///< crash reports
};

/// A browser that can start our relay, and where this system's copy of it looks for the relay's manifest.
struct BrowserHome {
    enum class Family { chromium, mozilla };
    QString data{};      ///< exists once the browser was used
    QString manifests{}; ///< need not exist
    Family family{};
    QString name{};
    QString bundleID{}; ///< of the application; empty where it has none that is known
};

/// One adapter of every port. Members are destroyed in reverse order; adapters may use the ones before them.
struct Platform {
    Folders folders{};
    QString relay{};               ///< path of the program that browsers start to reach us
    QList<BrowserHome> browsers{}; ///< all that this system may have
    QString extension{};           ///< folder of the browsers' companion extension
    /// Whether the process at the other end of a connected local socket is this user's.
    std::function<bool(int socket)> isPeerOwnUser = [](int) { return false; };
    /// Lets both clocks leap ahead by as much, in builds that can do that; what falls due on the way runs at once.
    std::function<void(Clock::Duration)> skipTime{};
    std::function<QStringList()> recentLog = [] { return QStringList(); }; ///< what was logged last, oldest first
    std::unique_ptr<Worker> disk{}; ///< writes what the services save, off the main thread
    std::unique_ptr<Clock> clock{};
    std::unique_ptr<SettingsStore> settings{};
    std::unique_ptr<Applications> applications{};
    std::unique_ptr<Accessibility> accessibility{};
    std::unique_ptr<Displays> displays{};
    std::unique_ptr<Panels> panels{};
    std::unique_ptr<SystemDock> systemDock{};
    std::unique_ptr<PointerGuard> pointerGuard{};
    std::unique_ptr<Badges> badges{};
    std::unique_ptr<WindowPreviews> previews{};
    std::unique_ptr<Trash> trash{};
    std::unique_ptr<HotKeys> hotKeys{};
    std::unique_ptr<SystemLook> look{};
    std::unique_ptr<StatusArea> statusArea{};
    std::unique_ptr<IdleTime> idleTime{};
    std::unique_ptr<Shell> shell{};
    std::unique_ptr<Remedies> remedies{};
    std::unique_ptr<FileChooser> fileChooser{};
    std::unique_ptr<LanguageModel> languageModel{};
    std::unique_ptr<NotificationLog> notificationLog{};
    std::unique_ptr<NotificationBanners> notificationBanners{};
    std::unique_ptr<SecretStore> secrets{};
    std::unique_ptr<CalendarStore> calendar{};
    std::unique_ptr<Documents> documents{};
    std::unique_ptr<LoginItem> loginItem{};
    std::unique_ptr<SoundPlayer> sounds{};
    std::unique_ptr<HttpClient> http{};
};

} // namespace fendrel
