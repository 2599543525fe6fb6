#pragma once

#include "Platform/Linux/X11/Strut.h"

#include <QRect>
#include <QString>

#include <xcb/xcb.h>

#include <optional>

namespace fendrel {

/// What the server knows of a window that the window manager manages.
struct X11Window {
    enum class Role {
        ordinary, ///< main windows, dialogs, palettes
        desktop,
        dock,
        passing, ///< splash screens and notifications
    };

    xcb_window_t id{};
    QString title{};
    QString instanceName{}; ///< the two halves of WM_CLASS
    QString className{};
    QString declaredEntry{};     ///< id of the desktop entry that the application itself names; may be empty
    std::optional<qint64> pid{}; ///< nothing for a window of another machine
    qint64 client{};             ///< the same for all windows of one X connection
    xcb_window_t transientFor{};
    Role role{};
    bool isSkippingTaskbar{};
    bool isMinimized{};
    bool isFullScreen{};
    bool demandsAttention{};          ///< the window manager says so
    bool isUrgent{};                  ///< the application says so
    std::optional<quint32> desktop{}; ///< nothing when it is on all of them, or the window manager has none
    std::optional<Strut> strut{};
    bool operator==(const X11Window&) const = default;

    /// Has a place in a dock or a task bar.
    bool isRegular() const { return role == Role::ordinary && !isSkippingTaskbar; }
    bool wantsAttention() const { return isRegular() && (demandsAttention || isUrgent); }
};

} // namespace fendrel
