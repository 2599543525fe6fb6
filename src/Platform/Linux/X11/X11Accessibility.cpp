#include "Platform/Linux/X11/X11Accessibility.h"

#include "Platform/Shared/AtNextTurn.h"

#include <algorithm>

namespace fendrel {

namespace {

xcb_window_t native(WindowID window) {
    return static_cast<xcb_window_t>(window.value);
}

/// Windows that a person would count as an application's.
bool isShown(const X11Window& window) {
    return window.role == X11Window::Role::ordinary;
}

} // namespace

X11Accessibility::X11Accessibility(std::shared_ptr<ApplicationGroups> groups, Clock& clock)
    : m_groups(std::move(groups)), m_requests(m_groups->windows().connection()), m_restore(m_groups->windows(), clock) {
    auto* windows = &m_groups->windows();
    connect(windows, &X11Windows::windowChanged, this, [this](const X11Window& now, const X11Window& before) {
        if (now.isMinimized != before.isMinimized)
            tellWindows();
        if (now.isMinimized != before.isMinimized || isShown(now) != isShown(before) || now.title != before.title)
            tellAtNextTurn();
        if (now.title == before.title)
            return;
        const auto owner = m_groups->ownerOf(now.id);
        m_observers.forEach([&](const Observed& observed) {
            if (observed.pid == owner && observed.observer.onTitleChanged)
                observed.observer.onTitleChanged({now.id});
        });
    });
    connect(windows, &X11Windows::frameChanged, this, &X11Accessibility::frameDidChange);
    connect(windows, &X11Windows::activeChanged, this, &X11Accessibility::tellWindows);
    connect(windows, &X11Windows::listChanged, this, &X11Accessibility::tellWindows);
    connect(m_groups.get(), &ApplicationGroups::groupsChanged, this, &X11Accessibility::tellWindows);
    connect(windows, &X11Windows::listChanged, this, &X11Accessibility::tellAtNextTurn);
    connect(m_groups.get(), &ApplicationGroups::groupsChanged, this, &X11Accessibility::tellAtNextTurn);
}

void X11Accessibility::tellAtNextTurn() {
    if (m_telling)
        return;
    m_telling = atNextTurn([this] {
        m_telling.reset();
        onWindowsChanged();
    });
}

void X11Accessibility::frameDidChange(xcb_window_t window) {
    if (m_tellingMove || window != m_groups->windows().active())
        return;
    m_tellingMove = atNextTurn([this] {
        m_tellingMove.reset();
        onFocusedWindowMoved();
    });
}

void X11Accessibility::tellWindows() {
    m_observers.forEach([this](Observed& observed) {
        const auto focused = focusedWindow(observed.pid);
        const auto main = mainWindow(observed.pid);
        // One that goes to the back keeps its main window, and nothing new is to be read from it.
        const bool isNews = (focused && focused != observed.focused) || main != observed.main;
        observed.focused = focused;
        observed.main = main;
        if (isNews && observed.observer.onWindowChanged)
            observed.observer.onWindowChanged();
    });
}

QList<WindowInfo> X11Accessibility::windows(qint64 pid) const {
    QList<WindowInfo> windows;
    const auto group = m_groups->find(pid);
    for (const xcb_window_t id : group ? group->windows : QList<xcb_window_t>()) {
        const auto* window = m_groups->windows().find(id);
        if (isShown(*window))
            windows.append({.id = {id},
                            .title = window->title,
                            .isMinimized = window->isMinimized,
                            .isHidden = window->isMinimized && m_groups->hidden().contains(id),
                            .document = {}});
    }
    return windows;
}

std::optional<WindowID> X11Accessibility::focusedWindow(qint64 pid) const {
    const xcb_window_t active = m_groups->windows().active();
    return m_groups->ownerOf(active) == pid ? std::optional(WindowID{active}) : std::nullopt;
}

std::optional<WindowID> X11Accessibility::mainWindow(qint64 pid) const {
    const auto all = windows(pid);
    const auto visible = std::ranges::find(all, false, &WindowInfo::isMinimized);
    return visible == all.end() ? std::nullopt : std::optional(visible->id);
}

std::optional<QString> X11Accessibility::title(WindowID window) const {
    const auto* known = m_groups->windows().find(native(window));
    return known == nullptr ? std::nullopt : std::optional(known->title);
}

std::optional<QRect> X11Accessibility::frame(WindowID window) const {
    return m_groups->windows().frame(native(window));
}

Handle X11Accessibility::observe(qint64 pid, Observer observer) {
    return m_observers.add(
        {.pid = pid, .observer = std::move(observer), .focused = focusedWindow(pid), .main = mainWindow(pid)});
}

void X11Accessibility::raise(WindowID window) {
    m_requests.activate(native(window));
}

void X11Accessibility::restore(WindowID window) {
    m_restore.restore({native(window)});
}

void X11Accessibility::minimize(WindowID window) {
    m_requests.minimize(native(window));
}

void X11Accessibility::close(WindowID window) {
    m_requests.close(native(window));
}

} // namespace fendrel
