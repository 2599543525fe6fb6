#include "Platform/Linux/Docks/DockDrivers.h"

#include "Platform/Linux/Docks/CinnamonDock.h"
#include "Platform/Linux/Docks/ConfigurationDock.h"
#include "Platform/Linux/Docks/PlasmaDock.h"
#include "Platform/Linux/Docks/XfceDock.h"

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

ConfigurationDockKind plank() {
    return {.dock = u"plank"_s,
            .name = "Plank",
            .service = u"net.launchpad.plank"_s,
            .list = {.schema = u"net.launchpad.plank"_s, .key = u"enabled-docks"_s},
            .schema = u"net.launchpad.plank.dock.settings"_s,
            .path = u"/net/launchpad/plank/docks/%1/"_s,
            .edgeKey = u"position"_s,
            // Pressure at the edge would show it without the delay.
            .hiding = {
                {u"hide-mode"_s, u"'auto'"_s}, {u"unhide-delay"_s, u"1000000"_s}, {u"pressure-reveal"_s, u"false"_s}}};
}

ConfigurationDockKind dashToDock() {
    const QString ubuntus = u"ubuntu-dock@ubuntu.com"_s;
    const bool isUbuntu = qEnvironmentVariable("GNOME_SHELL_SESSION_MODE") == u"ubuntu"_s;
    return {.dock = u"dash-to-dock"_s,
            .name = QT_TRANSLATE_NOOP("Docks", "the GNOME dock"),
            .service = u"org.gnome.Shell"_s,
            .list = {.schema = u"org.gnome.shell"_s, .key = u"enabled-extensions"_s},
            .panels = {u"dash-to-dock@micxgx.gmail.com"_s, ubuntus},
            .unlisted = isUbuntu ? QStringList{ubuntus} : QStringList{},
            .schema = u"org.gnome.shell.extensions.dash-to-dock"_s,
            .edgeKey = u"dock-position"_s,
            // Hidden by hand it comes for no pointer, no hot key and nothing urgent, only with the overview.
            .hiding = {{u"manualhide"_s, u"true"_s}, {u"dock-fixed"_s, u"false"_s}, {u"show-delay"_s, u"1000.0"_s}}};
}

ConfigurationDockKind mate() {
    return {.dock = u"mate-panel"_s,
            .name = QT_TRANSLATE_NOOP("Docks", "the MATE panel"),
            .service = u"org.mate.Panel"_s,
            .list = {.schema = u"org.mate.panel"_s, .key = u"toplevel-id-list"_s},
            .schema = u"org.mate.panel.toplevel"_s,
            .path = u"/org/mate/panel/toplevels/%1/"_s,
            .edgeKey = u"orientation"_s,
            .hiding = {{u"auto-hide"_s, u"true"_s}, {u"unhide-delay"_s, u"1000000"_s}}};
}

} // namespace

DesktopDock::Drivers dockDrivers(const std::shared_ptr<DesktopConfiguration>& configuration, Clock& clock) {
    DesktopDock::Drivers drivers;
    drivers.push_back(std::make_unique<ConfigurationDock>(plank(), configuration));
    drivers.push_back(std::make_unique<ConfigurationDock>(dashToDock(), configuration));
    drivers.push_back(std::make_unique<CinnamonDock>(configuration));
    drivers.push_back(std::make_unique<ConfigurationDock>(mate(), configuration));
    drivers.push_back(std::make_unique<PlasmaDock>());
    drivers.push_back(std::make_unique<XfceDock>(clock));
    return drivers;
}

} // namespace fendrel
