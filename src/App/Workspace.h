#pragma once

#include "Ports/Accessibility.h"
#include "Ports/Applications.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <optional>

namespace fendrel {

class Shell;

/// The other applications of this machine, by bundle identifier: which are installed, which run, and what can be done
/// with them. Main thread. No operation fails: what is unknown gives an empty answer or does nothing.
class Workspace : public QObject {
    Q_OBJECT
public:
    Workspace(Applications& applications, Accessibility& accessibility, Shell& shell);

    const QList<InstalledApp>& installedApps() const; ///< by shown name, each application once
    const QSet<QString>& running() const { return m_running; }
    const QStringList& runningApps() const { return m_runningApps; } ///< oldest first, without this application

    std::optional<QString> url(const QString& bundleID) const; ///< path of its bundle or desktop entry
    AppIcon icon(const QString& bundleID) const;
    QList<AppAction> actions(const QString& bundleID) const;
    std::optional<QString> applicationAt(const QUrl& file) const;
    bool isBrowser(const QString& bundleID) const;
    bool wantsAttention(const QString& bundleID) const;
    QString displayName(const QString& bundleID) const; ///< the bundle identifier when nobody knows a name

    /// The running processes of an application, oldest first.
    QList<RunningApp> instances(const QString& bundleID) const;
    QList<WindowInfo> windows(const QString& bundleID) const;
    bool hasVisibleWindow(const QString& bundleID) const;

    void open(const QString& bundleID, bool activates = true);
    void openWindow(const QString& bundleID); ///< one more
    void openFiles(const QString& bundleID, const QList<QUrl>& files);
    void runAction(const QString& bundleID, const QString& actionID);
    void hide(const QString& bundleID);
    void unhide(const QString& bundleID);
    void hideOthers(const QString& bundleID); ///< hides every other regular application
    void showAllWindows(const QString& bundleID);
    void quit(const QString& bundleID);
    void forceQuit(const QString& bundleID);
    void revealInFinder(const QString& bundleID);

    /// Reads the running applications again; called on every launch, end and activation.
    void refreshRunning();
    /// Forgets what it knows of installed applications; called when some came or went.
    void refreshInstalled();

Q_SIGNALS:
    void runningChanged();
    void installedChanged();

private:
    Applications& m_applications;
    Accessibility& m_accessibility;
    Shell& m_shell;
    QList<RunningApp> m_instances; ///< regular, oldest first
    QStringList m_runningApps;
    QSet<QString> m_running;
    mutable QHash<QString, QString> m_urls;
    mutable QHash<QString, AppIcon> m_icons;
    mutable std::optional<QList<InstalledApp>> m_installedCache;
};

} // namespace fendrel
