#include "Platform/Linux/X11/X11Applications.h"

#include "Base/Log.h"
#include "Platform/Linux/Applications/DefaultApplications.h"
#include "Platform/Linux/Applications/ExecLine.h"
#include "Platform/Linux/Applications/NativeAppTable.h"

#include <QCoreApplication>
#include <QPointer>

#include <csignal>

namespace fendrel {

using namespace Qt::StringLiterals;

X11Applications::X11Applications(std::shared_ptr<ApplicationGroups> groups, std::shared_ptr<DesktopSettings> settings,
                                 Clock& clock)
    : m_groups(std::move(groups)),
      m_requests(m_groups->windows().connection()),
      m_restore(m_groups->windows(), clock),
      m_icons(m_groups, std::move(settings)) {
    connect(m_groups.get(), &ApplicationGroups::groupsChanged, this, [this] { onRunningChanged(); });
    connect(m_groups.get(), &ApplicationGroups::frontChanged, this, [this] { onActivated(m_groups->front()); });
    m_icons.onThemeChanged = [this] { onInstalledChanged(); };
    m_groups->catalog().onChanged = [this] {
        m_icons.forget();
        m_groups->refreshNames();
        onInstalledChanged();
    };
}

std::optional<QString> X11Applications::location(const QString& bundleID) const {
    const auto* entry = m_groups->catalog().entry(bundleID);
    return entry == nullptr ? std::nullopt : std::optional(entry->path);
}

AppIcon X11Applications::icon(const QString& bundleID) const {
    return m_icons.icon(bundleID);
}

QString X11Applications::fileManager() const {
    const auto& catalog = m_groups->catalog();
    const auto files = defaultApplicationFiles(DesktopEntryContext::ofThisSession().desktops);
    const auto* entry = defaultApplication(u"inode/directory"_s, files, catalog.index());
    return entry == nullptr ? QString() : catalog.identifier(*entry);
}

bool X11Applications::isBrowser(const QString& bundleID) const {
    const auto* entry = m_groups->catalog().entry(bundleID);
    return entry != nullptr && fendrel::isBrowser(*entry);
}

NativeApps X11Applications::nativeApps() const {
    return nativeAppTable();
}

QList<AppAction> X11Applications::actions(const QString& bundleID) const {
    QList<AppAction> actions;
    if (const auto* entry = m_groups->catalog().entry(bundleID)) {
        for (const DesktopAction& action : entry->actions)
            actions.append({.id = action.id, .name = action.name});
    }
    return actions;
}

std::optional<QString> X11Applications::applicationAt(const QUrl& file) const {
    return m_groups->catalog().identifierAt(file);
}

void X11Applications::start(const QString& bundleID, bool activates, Start start) {
    const auto* entry = m_groups->catalog().entry(bundleID);
    if (entry == nullptr) {
        // Not which: nobody's lists may name it, so that a report on a problem couldn't leave it out.
        qCWarning(logDesktop) << "Couldn't open an application: it is not installed";
        return;
    }
    if (!activates) {
        start(m_launcher, *entry, {});
        return;
    }
    // The moment of the user's wish lets the window manager put the new window in front.
    m_groups->windows().connection().withServerTime(
        [self = QPointer(this), wanted = *entry, start = std::move(start)](xcb_timestamp_t time) {
            if (self)
                start(self->m_launcher, wanted, time);
        });
}

void X11Applications::open(const QString& bundleID, bool activates) {
    if (!bringForward(bundleID, activates))
        start(bundleID, activates, &Launcher::launch);
}

void X11Applications::openWindow(const QString& bundleID) {
    start(bundleID, true, &Launcher::openWindow);
}

void X11Applications::openFiles(const QString& bundleID, const QList<QUrl>& files) {
    // A program that takes no files can still be there for its user.
    const auto* wanted = m_groups->catalog().entry(bundleID);
    if (wanted != nullptr && !wanted->exec.isEmpty() && execLines(*wanted, files).isEmpty()) {
        open(bundleID, true);
        return;
    }
    start(bundleID, true, [files](Launcher& launcher, const DesktopEntry& entry, Launcher::Time time) {
        launcher.open(entry, files, time);
    });
}

void X11Applications::runAction(const QString& bundleID, const QString& actionID) {
    start(bundleID, true, [actionID](Launcher& launcher, const DesktopEntry& entry, Launcher::Time time) {
        launcher.runAction(entry, actionID, time);
    });
}

bool X11Applications::bringForward(const QString& bundleID, bool activates) {
    const X11Window* newest = nullptr;
    for (const xcb_window_t id : m_groups->windows().byRecency()) {
        const auto owner = m_groups->ownerOf(id);
        const auto group = owner ? m_groups->find(*owner) : std::nullopt;
        const auto* window = m_groups->windows().find(id);
        if (group && group->app.bundleID == bundleID && window->isRegular() &&
            group->app.pid != QCoreApplication::applicationPid()) {
            newest = window;
            break;
        }
    }
    if (newest != nullptr && activates)
        m_requests.activate(newest->id);
    return newest != nullptr;
}

QList<xcb_window_t> X11Applications::regularWindows(qint64 pid) const {
    const auto group = m_groups->find(pid);
    if (!group)
        return {};
    QList<xcb_window_t> windows = group->windows;
    windows.removeIf([this](xcb_window_t id) { return !m_groups->windows().find(id)->isRegular(); });
    return windows;
}

void X11Applications::activate(qint64 pid) {
    const auto regular = regularWindows(pid);
    if (!regular.isEmpty())
        m_requests.activate(regular.first());
    else if (const auto group = m_groups->find(pid))
        m_requests.activate(group->windows.first());
}

void X11Applications::hide(qint64 pid) {
    for (const xcb_window_t id : regularWindows(pid)) {
        if (m_groups->windows().find(id)->isMinimized)
            continue;
        m_groups->hidden().add(id);
        m_requests.minimize(id);
    }
}

void X11Applications::unhide(qint64 pid) {
    auto windows = regularWindows(pid);
    windows.removeIf([this](xcb_window_t id) { return !m_groups->hidden().take(id); });
    m_restore.restore(windows);
}

void X11Applications::quit(qint64 pid) {
    const auto group = m_groups->find(pid);
    if (group) {
        for (const xcb_window_t id : group->windows)
            m_requests.close(id);
    } else if (pid > 1) {
        ::kill(static_cast<pid_t>(pid), SIGTERM);
    }
}

void X11Applications::forceQuit(qint64 pid) {
    if (pid > 1)
        ::kill(static_cast<pid_t>(pid), SIGKILL);
    else if (const auto group = m_groups->find(pid))
        m_requests.killClient(group->windows.first());
}

} // namespace fendrel
