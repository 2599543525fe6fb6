#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QSet>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace fendrel {

struct InstalledApp {
    QString bundleID{};
    QString name{};
    bool operator==(const InstalledApp&) const = default;
};

struct RunningApp {
    qint64 pid{};
    QString bundleID{};    ///< empty when the system cannot name the application
    QString name{};        ///< empty when the system knows none
    bool isRegular{};      ///< shows in a dock, as opposed to panels, desktops and background helpers
    qint64 launchOrder{};  ///< grows with the launch date; its unit is the adapter's own
    bool wantsAttention{}; ///< one of its windows asks for the user
    bool operator==(const RunningApp&) const = default;
};

/// An icon as the system has it: a file to draw at any size, else a picture. Both empty: there is none.
struct AppIcon {
    QString file{};
    QImage image{};
};

/// Something that an application can be started for, besides itself: a private window, a new message.
struct AppAction {
    QString id{};
    QString name{};
    bool operator==(const AppAction&) const = default;
};

/// Applications of this system that the built-in modes should know besides the ones they name themselves.
struct NativeApps {
    QSet<QString> shared{};                   ///< belong to every mode
    QHash<QString, QStringList> byTemplate{}; ///< template id -> bundle identifiers, in dock order
};

/// The other applications of this machine. Main thread. No call fails: what cannot be done is left undone.
class Applications {
public:
    virtual ~Applications() = default;

    virtual QList<InstalledApp> installed() const = 0;
    virtual QList<RunningApp> running() const = 0;           ///< one entry per process, in no particular order
    virtual std::optional<RunningApp> frontmost() const = 0; ///< this application itself included

    /// The bundle's or desktop entry's path; nothing when the system does not know the application.
    virtual std::optional<QString> location(const QString& bundleID) const = 0;
    virtual AppIcon icon(const QString& bundleID) const = 0;
    virtual QString fileManager() const = 0;                   ///< bundle identifier; empty when there is none
    virtual bool isBrowser(const QString& bundleID) const = 0; ///< whether it opens pages of the web
    virtual NativeApps nativeApps() const = 0;
    virtual QList<AppAction> actions(const QString& bundleID) const = 0; ///< in the application's order
    /// The application that a file stands for, as one that is dragged from a menu or a file manager.
    virtual std::optional<QString> applicationAt(const QUrl& file) const = 0;

    /// Starts the application, or brings the running one forward. Without `activates` it stays behind.
    virtual void open(const QString& bundleID, bool activates) = 0;
    virtual void openWindow(const QString& bundleID) = 0; ///< one more, in the way that the application has for it
    virtual void openFiles(const QString& bundleID, const QList<QUrl>& files) = 0; ///< or just it, if it takes none
    virtual void runAction(const QString& bundleID, const QString& actionID) = 0;
    virtual void activate(qint64 pid) = 0;
    virtual void hide(qint64 pid) = 0;
    virtual void unhide(qint64 pid) = 0;
    virtual void quit(qint64 pid) = 0;
    virtual void forceQuit(qint64 pid) = 0;

    std::function<void()> onInstalledChanged = [] {};
    std::function<void()> onRunningChanged = [] {}; ///< an application was launched or ended
    /// Another application came to the front; nothing when no window is active for longer than a moment.
    std::function<void(const std::optional<RunningApp>&)> onActivated = [](const auto&) {};
};

} // namespace fendrel
