#include "Platform/MakePlatform.h"

#include "Platform/Linux/Applications/BrowserHomes.h"
#include "Platform/Linux/Banners/DesktopBanners.h"
#include "Platform/Linux/Calendar/DesktopCalendar.h"
#include "Platform/Linux/Desktop/AutostartEntry.h"
#include "Platform/Linux/Desktop/CanberraSounds.h"
#include "Platform/Linux/Desktop/DesktopRemedies.h"
#include "Platform/Linux/Desktop/DesktopShell.h"
#include "Platform/Linux/Desktop/GSettingsConfiguration.h"
#include "Platform/Linux/Desktop/LauncherEntries.h"
#include "Platform/Linux/Desktop/PortalLook.h"
#include "Platform/Linux/Desktop/StatusNotifierArea.h"
#include "Platform/Linux/Desktop/TrashContents.h"
#include "Platform/Linux/Desktop/TrashFolder.h"
#include "Platform/Linux/Docks/DockDrivers.h"
#include "Platform/Linux/Documents/DesktopDocuments.h"
#include "Platform/Linux/Keyring/KeyringStore.h"
#include "Platform/Linux/ModelServer/ModelServer.h"
#include "Platform/Linux/Notifications/NotificationRecorder.h"
#include "Platform/Linux/PeerCredentials.h"
#include "Platform/Linux/Portal/PortalFileChooser.h"
#include "Platform/Linux/X11/X11Accessibility.h"
#include "Platform/Linux/X11/X11Applications.h"
#include "Platform/Linux/X11/X11Displays.h"
#include "Platform/Linux/X11/X11HotKeys.h"
#include "Platform/Linux/X11/X11IdleTime.h"
#include "Platform/Linux/X11/X11Panels.h"
#include "Platform/Linux/X11/X11PointerGuard.h"
#include "Platform/Linux/X11/X11WindowPreviews.h"
#include "Platform/Null/NullPlatform.h"
#include "Platform/Shared/LeapingClock.h"
#include "Platform/Shared/NetworkClient.h"
#include "Platform/Shared/SettingsFile.h"
#include "Platform/Shared/SystemClock.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QString stateFolder() {
    const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + u"/.local/state"_s;
}

} // namespace

Folders standardFolders() {
    const auto inside = [](QStandardPaths::StandardLocation location) {
        return QStandardPaths::writableLocation(location) + u"/Fendrel"_s;
    };
    return {.data = inside(QStandardPaths::GenericDataLocation),
            .config = inside(QStandardPaths::GenericConfigLocation),
            .crashes = stateFolder() + u"/Fendrel/DiagnosticReports"_s};
}

QList<BrowserHome> standardBrowsers() {
    return browserHomes(QDir::homePath(), QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

Platform makePlatformWithoutDisplay() {
    Platform platform = nullPlatform();
    platform.folders = standardFolders();
    platform.relay = QCoreApplication::applicationDirPath() + u"/fendrel-bridge"_s;
    platform.browsers = standardBrowsers();
    platform.extension = QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/fendrel/extension"_s);
    platform.isPeerOwnUser = isPeerOwnUser;
    platform.disk = std::make_unique<Worker>(u"disk"_s);
#ifdef FENDREL_TIME_TRAVEL
    auto clock = std::make_unique<LeapingClock>(std::make_unique<SystemClock>());
    platform.skipTime = [clock = clock.get()](Clock::Duration time) { clock->leap(time); };
    platform.clock = std::move(clock);
#else
    platform.clock = std::make_unique<SystemClock>();
#endif
    platform.settings =
        std::make_unique<SettingsFile>(platform.folders.config + u"/Settings.json"_s, *platform.disk, *platform.clock);
    platform.notificationBanners = std::make_unique<DesktopBanners>(*platform.settings);
    platform.systemDock =
        std::make_unique<DesktopDock>(dockDrivers(std::make_shared<GSettingsConfiguration>(), *platform.clock));
    return platform;
}

Platform makePlatform() {
    Platform platform = makePlatformWithoutDisplay();
    Clock& clock = *platform.clock;
    const auto connection = X11Connection::open(clock);
    if (!connection)
        qFatal("The X server does not answer any more");
    const auto windows = std::make_shared<X11Windows>(connection, clock);
    const auto monitors = std::make_shared<X11Monitors>(connection);
    const auto catalog = std::make_shared<ApplicationCatalog>(
        DesktopEntries::standardFolders(), DesktopEntryContext::ofThisSession(), ApplicationIdentity::builtIn(), clock);
    const auto groups = std::make_shared<ApplicationGroups>(windows, catalog, clock);
    const auto settings = std::make_shared<DesktopSettings>(connection);

    platform.applications = std::make_unique<X11Applications>(groups, settings, clock);
    platform.accessibility = std::make_unique<X11Accessibility>(groups, clock);
    platform.displays = std::make_unique<X11Displays>(monitors, windows);
    platform.panels = std::make_unique<X11Panels>(windows, monitors, connection);
    platform.pointerGuard = std::make_unique<X11PointerGuard>(connection);
    platform.hotKeys = std::make_unique<X11HotKeys>(connection);
    platform.previews = std::make_unique<X11WindowPreviews>(windows, connection, clock);
    platform.badges = std::make_unique<LauncherEntries>(catalog);
    platform.trash = std::make_unique<TrashFolder>(TrashFolder::standardHome(), trashContents::onMountedDisks,
                                                   *platform.applications, catalog);
    platform.look = std::make_unique<PortalLook>(settings, std::make_shared<GSettingsConfiguration>());
    platform.statusArea = std::make_unique<StatusNotifierArea>();
    platform.idleTime = std::make_unique<X11IdleTime>(connection);
    platform.shell = std::make_unique<DesktopShell>(catalog, clock);
    platform.remedies = std::make_unique<DesktopRemedies>(DesktopRemedies::ofThisSession(platform.extension));
    platform.fileChooser = std::make_unique<PortalFileChooser>();
    platform.languageModel = std::make_unique<ModelServer>(clock);
    platform.notificationLog = std::make_unique<NotificationRecorder>(platform.folders.data, catalog, clock);
    platform.secrets = std::make_unique<KeyringStore>();
    platform.documents = std::make_unique<DesktopDocuments>(QDir::homePath(), DesktopDocuments::standardRecentList());
    platform.calendar = std::make_unique<DesktopCalendar>(clock);
    platform.loginItem =
        std::make_unique<AutostartEntry>(AutostartEntry::standardFolder(), AutostartEntry::otherFolders(),
                                         QCoreApplication::applicationFilePath(), *platform.disk);
    platform.sounds = std::make_unique<CanberraSounds>(
        QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/fendrel/sounds"_s));
    platform.http = std::make_unique<NetworkClient>(clock);
    return platform;
}

} // namespace fendrel
