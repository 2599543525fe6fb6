#pragma once

#include "Platform/Linux/Applications/Launcher.h"
#include "Platform/Linux/X11/ApplicationGroups.h"
#include "Platform/Linux/X11/ApplicationIcons.h"
#include "Platform/Linux/X11/QuietRestore.h"
#include "Platform/Linux/X11/X11Requests.h"
#include "Ports/Applications.h"

#include <QObject>

#include <functional>
#include <memory>

namespace fendrel {

/// Applications as an X11 desktop shows them. "Hiding" is minimising: X11 knows windows only.
class X11Applications : public QObject, public Applications {
    Q_OBJECT
public:
    X11Applications(std::shared_ptr<ApplicationGroups> groups, std::shared_ptr<DesktopSettings> settings, Clock& clock);

    QList<InstalledApp> installed() const override { return m_groups->catalog().installed(); }
    QList<RunningApp> running() const override { return m_groups->running(); }
    std::optional<RunningApp> frontmost() const override { return m_groups->front(); }

    std::optional<QString> location(const QString& bundleID) const override;
    AppIcon icon(const QString& bundleID) const override;
    QString fileManager() const override;
    bool isBrowser(const QString& bundleID) const override;
    NativeApps nativeApps() const override;
    QList<AppAction> actions(const QString& bundleID) const override;
    std::optional<QString> applicationAt(const QUrl& file) const override;

    void open(const QString& bundleID, bool activates) override;
    void openWindow(const QString& bundleID) override;
    void openFiles(const QString& bundleID, const QList<QUrl>& files) override;
    void runAction(const QString& bundleID, const QString& actionID) override;
    void activate(qint64 pid) override;
    void hide(qint64 pid) override;
    void unhide(qint64 pid) override;
    void quit(qint64 pid) override;
    void forceQuit(qint64 pid) override;

private:
    using Start = std::function<void(Launcher& launcher, const DesktopEntry& entry, Launcher::Time time)>;
    void start(const QString& bundleID, bool activates, Start start);
    bool bringForward(const QString& bundleID, bool activates);
    QList<xcb_window_t> regularWindows(qint64 pid) const;

    std::shared_ptr<ApplicationGroups> m_groups;
    X11Requests m_requests;
    QuietRestore m_restore;
    Launcher m_launcher;
    mutable ApplicationIcons m_icons;
};

} // namespace fendrel
