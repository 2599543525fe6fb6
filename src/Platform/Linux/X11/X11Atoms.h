#pragma once

#include <xcb/xcb.h>

#include <array>
#include <string_view>
#include <utility>

namespace fendrel {

/// The names that window managers, toolkits and we agree on, as the server numbers them.
struct X11Atoms {
    xcb_atom_t utf8String{};
    xcb_atom_t netSupported{};
    xcb_atom_t netSupportingWmCheck{};
    xcb_atom_t netClientList{};
    xcb_atom_t netClientListStacking{};
    xcb_atom_t netActiveWindow{};
    xcb_atom_t netCurrentDesktop{};
    xcb_atom_t netCloseWindow{};
    xcb_atom_t netRestackWindow{};
    xcb_atom_t netWmName{};
    xcb_atom_t netWmPid{};
    xcb_atom_t netWmDesktop{};
    xcb_atom_t netWmIcon{};
    xcb_atom_t netFrameExtents{};
    xcb_atom_t gtkFrameExtents{};
    xcb_atom_t netWmStrut{};
    xcb_atom_t netWmStrutPartial{};
    xcb_atom_t netWmState{};
    xcb_atom_t netWmStateHidden{};
    xcb_atom_t netWmStateShaded{};
    xcb_atom_t netWmStateAbove{};
    xcb_atom_t netWmStateSticky{};
    xcb_atom_t netWmStateFullscreen{};
    xcb_atom_t netWmStateDemandsAttention{};
    xcb_atom_t netWmStateSkipTaskbar{};
    xcb_atom_t netWmStateSkipPager{};
    xcb_atom_t netWmWindowType{};
    xcb_atom_t netWmWindowTypeDesktop{};
    xcb_atom_t netWmWindowTypeDock{};
    xcb_atom_t netWmWindowTypeSplash{};
    xcb_atom_t netWmWindowTypeNotification{};
    xcb_atom_t netWmWindowTypeDialog{};
    xcb_atom_t netWmWindowTypeNormal{};
    xcb_atom_t netWmWindowTypePopupMenu{};
    xcb_atom_t gtkApplicationId{};
    xcb_atom_t kdeDesktopFile{};
    xcb_atom_t kdeBlurRegion{};
    xcb_atom_t wmState{};
    xcb_atom_t wmChangeState{};
    xcb_atom_t wmProtocols{};
    xcb_atom_t wmTakeFocus{};
    xcb_atom_t xsettingsSettings{};
};

inline constexpr auto x11AtomNames = std::to_array<std::pair<xcb_atom_t X11Atoms::*, std::string_view>>({
    {&X11Atoms::utf8String, "UTF8_STRING"},
    {&X11Atoms::netSupported, "_NET_SUPPORTED"},
    {&X11Atoms::netSupportingWmCheck, "_NET_SUPPORTING_WM_CHECK"},
    {&X11Atoms::netClientList, "_NET_CLIENT_LIST"},
    {&X11Atoms::netClientListStacking, "_NET_CLIENT_LIST_STACKING"},
    {&X11Atoms::netActiveWindow, "_NET_ACTIVE_WINDOW"},
    {&X11Atoms::netCurrentDesktop, "_NET_CURRENT_DESKTOP"},
    {&X11Atoms::netCloseWindow, "_NET_CLOSE_WINDOW"},
    {&X11Atoms::netRestackWindow, "_NET_RESTACK_WINDOW"},
    {&X11Atoms::netWmName, "_NET_WM_NAME"},
    {&X11Atoms::netWmPid, "_NET_WM_PID"},
    {&X11Atoms::netWmDesktop, "_NET_WM_DESKTOP"},
    {&X11Atoms::netWmIcon, "_NET_WM_ICON"},
    {&X11Atoms::netFrameExtents, "_NET_FRAME_EXTENTS"},
    {&X11Atoms::gtkFrameExtents, "_GTK_FRAME_EXTENTS"},
    {&X11Atoms::netWmStrut, "_NET_WM_STRUT"},
    {&X11Atoms::netWmStrutPartial, "_NET_WM_STRUT_PARTIAL"},
    {&X11Atoms::netWmState, "_NET_WM_STATE"},
    {&X11Atoms::netWmStateHidden, "_NET_WM_STATE_HIDDEN"},
    {&X11Atoms::netWmStateShaded, "_NET_WM_STATE_SHADED"},
    {&X11Atoms::netWmStateAbove, "_NET_WM_STATE_ABOVE"},
    {&X11Atoms::netWmStateSticky, "_NET_WM_STATE_STICKY"},
    {&X11Atoms::netWmStateFullscreen, "_NET_WM_STATE_FULLSCREEN"},
    {&X11Atoms::netWmStateDemandsAttention, "_NET_WM_STATE_DEMANDS_ATTENTION"},
    {&X11Atoms::netWmStateSkipTaskbar, "_NET_WM_STATE_SKIP_TASKBAR"},
    {&X11Atoms::netWmStateSkipPager, "_NET_WM_STATE_SKIP_PAGER"},
    {&X11Atoms::netWmWindowType, "_NET_WM_WINDOW_TYPE"},
    {&X11Atoms::netWmWindowTypeDesktop, "_NET_WM_WINDOW_TYPE_DESKTOP"},
    {&X11Atoms::netWmWindowTypeDock, "_NET_WM_WINDOW_TYPE_DOCK"},
    {&X11Atoms::netWmWindowTypeSplash, "_NET_WM_WINDOW_TYPE_SPLASH"},
    {&X11Atoms::netWmWindowTypeNotification, "_NET_WM_WINDOW_TYPE_NOTIFICATION"},
    {&X11Atoms::netWmWindowTypeDialog, "_NET_WM_WINDOW_TYPE_DIALOG"},
    {&X11Atoms::netWmWindowTypeNormal, "_NET_WM_WINDOW_TYPE_NORMAL"},
    {&X11Atoms::netWmWindowTypePopupMenu, "_NET_WM_WINDOW_TYPE_POPUP_MENU"},
    {&X11Atoms::gtkApplicationId, "_GTK_APPLICATION_ID"},
    {&X11Atoms::kdeDesktopFile, "_KDE_NET_WM_DESKTOP_FILE"},
    {&X11Atoms::kdeBlurRegion, "_KDE_NET_WM_BLUR_BEHIND_REGION"},
    {&X11Atoms::wmState, "WM_STATE"},
    {&X11Atoms::wmChangeState, "WM_CHANGE_STATE"},
    {&X11Atoms::wmProtocols, "WM_PROTOCOLS"},
    {&X11Atoms::wmTakeFocus, "WM_TAKE_FOCUS"},
    {&X11Atoms::xsettingsSettings, "_XSETTINGS_SETTINGS"},
});

} // namespace fendrel
