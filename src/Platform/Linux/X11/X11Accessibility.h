#pragma once

#include "Platform/Linux/X11/ApplicationGroups.h"
#include "Platform/Linux/X11/QuietRestore.h"
#include "Platform/Linux/X11/X11Requests.h"
#include "Platform/Shared/Listeners.h"
#include "Ports/Accessibility.h"

#include <QObject>

#include <memory>
#include <optional>

namespace fendrel {

/// Windows as the X server tells them, to everybody: there is no permission to ask for. Nothing here waits for another
/// application, so one that hangs is no special case.
class X11Accessibility : public QObject, public Accessibility {
    Q_OBJECT
public:
    X11Accessibility(std::shared_ptr<ApplicationGroups> groups, Clock& clock);

    bool isTrusted() const override { return true; }
    void requestPermission() override {}

    QList<WindowInfo> windows(qint64 pid) const override;
    std::optional<WindowID> focusedWindow(qint64 pid) const override;
    std::optional<WindowID> mainWindow(qint64 pid) const override;
    std::optional<QString> title(WindowID window) const override;
    std::optional<QRect> frame(WindowID window) const override;
    Handle observe(qint64 pid, Observer observer) override;

    void raise(WindowID window) override;
    void restore(WindowID window) override;
    void minimize(WindowID window) override;
    void close(WindowID window) override;

private:
    struct Observed {
        qint64 pid{};
        Observer observer{};
        std::optional<WindowID> focused{}; ///< what it was told last
        std::optional<WindowID> main{};
    };

    void tellWindows();
    void tellAtNextTurn();
    void frameDidChange(xcb_window_t window);

    std::shared_ptr<ApplicationGroups> m_groups;
    X11Requests m_requests;
    QuietRestore m_restore;
    Listeners<Observed> m_observers;
    std::optional<Handle> m_telling;     ///< here while `onWindowsChanged` is about to be called
    std::optional<Handle> m_tellingMove; ///< the same for `onFocusedWindowMoved`
};

} // namespace fendrel
