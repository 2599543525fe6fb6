#include "App/Workspace.h"

#include "Ports/Shell.h"

#include <QCoreApplication>

#include <algorithm>

namespace fendrel {

Workspace::Workspace(Applications& applications, Accessibility& accessibility, Shell& shell)
    : m_applications(applications), m_accessibility(accessibility), m_shell(shell) {
    refreshRunning();
}

const QList<InstalledApp>& Workspace::installedApps() const {
    if (!m_installedCache) {
        auto apps = m_applications.installed();
        std::ranges::stable_sort(apps, [](const InstalledApp& left, const InstalledApp& right) {
            return QString::localeAwareCompare(left.name, right.name) < 0;
        });
        QSet<QString> seen;
        apps.removeIf([&](const InstalledApp& app) {
            const auto before = seen.size();
            seen.insert(app.bundleID);
            return seen.size() == before;
        });
        m_installedCache = std::move(apps);
    }
    return *m_installedCache;
}

std::optional<QString> Workspace::url(const QString& bundleID) const {
    if (const auto known = m_urls.constFind(bundleID); known != m_urls.constEnd())
        return *known;
    // An unknown application is asked about again: it may be installed the next time.
    auto location = m_applications.location(bundleID);
    if (location)
        m_urls.insert(bundleID, *location);
    return location;
}

AppIcon Workspace::icon(const QString& bundleID) const {
    const auto known = m_icons.constFind(bundleID);
    if (known != m_icons.constEnd())
        return *known;
    AppIcon icon = m_applications.icon(bundleID);
    if (!icon.file.isEmpty() || !icon.image.isNull())
        m_icons.insert(bundleID, icon);
    return icon;
}

QList<AppAction> Workspace::actions(const QString& bundleID) const {
    return m_applications.actions(bundleID);
}

std::optional<QString> Workspace::applicationAt(const QUrl& file) const {
    return m_applications.applicationAt(file);
}

bool Workspace::isBrowser(const QString& bundleID) const {
    return m_applications.isBrowser(bundleID);
}

bool Workspace::wantsAttention(const QString& bundleID) const {
    return std::ranges::any_of(instances(bundleID), &RunningApp::wantsAttention);
}

QString Workspace::displayName(const QString& bundleID) const {
    const auto& apps = installedApps();
    const auto installed = std::ranges::find(apps, bundleID, &InstalledApp::bundleID);
    if (installed != apps.end() && !installed->name.isEmpty())
        return installed->name;
    const auto running = std::ranges::find(m_instances, bundleID, &RunningApp::bundleID);
    if (running != m_instances.end() && !running->name.isEmpty())
        return running->name;
    return bundleID;
}

QList<RunningApp> Workspace::instances(const QString& bundleID) const {
    QList<RunningApp> found;
    std::ranges::copy_if(m_instances, std::back_inserter(found),
                         [&](const RunningApp& app) { return app.bundleID == bundleID; });
    return found;
}

QList<WindowInfo> Workspace::windows(const QString& bundleID) const {
    QList<WindowInfo> windows;
    for (const RunningApp& app : instances(bundleID))
        windows += m_accessibility.windows(app.pid);
    return windows;
}

bool Workspace::hasVisibleWindow(const QString& bundleID) const {
    return std::ranges::any_of(windows(bundleID), [](const WindowInfo& window) { return !window.isMinimized; });
}

void Workspace::open(const QString& bundleID, bool activates) {
    m_applications.open(bundleID, activates);
}

void Workspace::openWindow(const QString& bundleID) {
    m_applications.openWindow(bundleID);
}

void Workspace::openFiles(const QString& bundleID, const QList<QUrl>& files) {
    m_applications.openFiles(bundleID, files);
}

void Workspace::runAction(const QString& bundleID, const QString& actionID) {
    m_applications.runAction(bundleID, actionID);
}

void Workspace::hide(const QString& bundleID) {
    for (const RunningApp& app : instances(bundleID))
        m_applications.hide(app.pid);
}

void Workspace::unhide(const QString& bundleID) {
    for (const RunningApp& app : instances(bundleID))
        m_applications.unhide(app.pid);
}

void Workspace::hideOthers(const QString& bundleID) {
    for (const QString& other : m_runningApps) {
        if (other != bundleID)
            hide(other);
    }
}

void Workspace::showAllWindows(const QString& bundleID) {
    unhide(bundleID);
    for (const WindowInfo& window : windows(bundleID)) {
        if (window.isMinimized)
            m_accessibility.restore(window.id);
    }
}

void Workspace::quit(const QString& bundleID) {
    for (const RunningApp& app : instances(bundleID))
        m_applications.quit(app.pid);
}

void Workspace::forceQuit(const QString& bundleID) {
    for (const RunningApp& app : instances(bundleID))
        m_applications.forceQuit(app.pid);
}

void Workspace::revealInFinder(const QString& bundleID) {
    if (const auto location = url(bundleID))
        m_shell.reveal({*location});
}

void Workspace::refreshRunning() {
    auto instances = m_applications.running();
    instances.removeIf([](const RunningApp& app) {
        return !app.isRegular || app.bundleID.isEmpty() || app.pid == QCoreApplication::applicationPid();
    });
    std::ranges::stable_sort(instances, {}, &RunningApp::launchOrder);
    if (instances == m_instances)
        return;
    m_instances = std::move(instances);
    m_runningApps.clear();
    m_running.clear();
    for (const RunningApp& app : m_instances) {
        if (m_running.contains(app.bundleID))
            continue;
        m_running.insert(app.bundleID);
        m_runningApps.append(app.bundleID);
    }
    Q_EMIT runningChanged();
}

void Workspace::refreshInstalled() {
    m_installedCache.reset();
    m_urls.clear();
    m_icons.clear();
    Q_EMIT installedChanged();
}

} // namespace fendrel
