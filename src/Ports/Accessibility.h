#pragma once

#include "Base/Handle.h"

#include <QList>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>

namespace fendrel {

/// A window of another application, as the system names it.
struct WindowID {
    quint64 value{};
    bool operator==(const WindowID&) const = default;
};

struct WindowInfo {
    WindowID id{};
    QString title{};
    bool isMinimized{};
    bool isHidden{}; ///< not minimised by itself: its application was hidden
    std::optional<QString> document{}; ///< address of the document it shows
    bool operator==(const WindowInfo&) const = default;
};

/// The windows of other applications. Main thread. An application that hangs cannot hold a call up for more than
/// 0.25 s; it answers like one without windows.
class Accessibility {
public:
    struct Observer {
        std::function<void()> onWindowChanged; ///< the focused or main window is another one
        std::function<void(WindowID)> onTitleChanged;
    };

    virtual ~Accessibility() = default;

    virtual bool isTrusted() const = 0; ///< whether titles and windows may be read at all
    virtual void requestPermission() = 0;
    std::function<void()> onTrustChanged = [] {};

    virtual QList<WindowInfo> windows(qint64 pid) const = 0;
    /// Some window came, went, was minimised, restored or renamed. Once for what happens at the same time.
    std::function<void()> onWindowsChanged = [] {};
    /// The window with the keyboard was moved, or has another size. Once for what happens at the same time.
    std::function<void()> onFocusedWindowMoved = [] {};
    virtual std::optional<WindowID> focusedWindow(qint64 pid) const = 0;
    virtual std::optional<WindowID> mainWindow(qint64 pid) const = 0; ///< a visible one; nothing when all are minimised
    virtual std::optional<QString> title(WindowID window) const = 0;
    virtual std::optional<QRect> frame(WindowID window) const = 0; ///< device pixels, from the desktop's origin
    virtual Handle observe(qint64 pid, Observer observer) = 0;

    virtual void raise(WindowID window) = 0;   ///< also restores it, and gives it the keyboard
    virtual void restore(WindowID window) = 0; ///< brings it back from being minimised, without the keyboard
    virtual void minimize(WindowID window) = 0;
    virtual void close(WindowID window) = 0;
};

} // namespace fendrel
