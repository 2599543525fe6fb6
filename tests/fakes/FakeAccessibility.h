#pragma once

#include "Platform/Shared/Listeners.h"
#include "Ports/Accessibility.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace fendrel {

/// Windows exist, change and vanish as the test tells; what the services ask for is written down.
class FakeAccessibility final : public Accessibility {
public:
    struct Window {
        qint64 pid{};
        WindowInfo info{};
        QRect frame{0, 0, 800, 600};
    };

    // What the test tells

    /// A window of the application, its focused one from now on.
    WindowID addWindow(qint64 pid, const QString& title) {
        const WindowID id{m_nextWindow++};
        windowList.append({.pid = pid, .info = {.id = id, .title = title}});
        focus(id);
        return id;
    }
    void focus(WindowID id) {
        const qint64 pid = find(id)->pid;
        m_focused.insert(pid, id);
        notify(pid, [](const Observer& observer) { observer.onWindowChanged(); });
    }
    void setTitle(WindowID id, const QString& title) {
        find(id)->info.title = title;
        notify(find(id)->pid, [id](const Observer& observer) { observer.onTitleChanged(id); });
    }
    /// The application's first other window takes the focus.
    void removeWindow(WindowID id) {
        const qint64 pid = find(id)->pid;
        windowList.removeIf([id](const Window& each) { return each.info.id == id; });
        m_focused.remove(pid);
        if (const auto left = windows(pid); !left.isEmpty())
            m_focused.insert(pid, left.first().id);
        notify(pid, [](const Observer& observer) { observer.onWindowChanged(); });
    }
    void setTrusted(bool isTrustedNow) {
        m_isTrusted = isTrustedNow;
        onTrustChanged();
    }

    QList<Window> windowList;
    QHash<qint64, WindowID> mainWindows; ///< by pid, where the main window is not the focused one

    // What the services asked for

    QStringList requests; ///< in order: "permission", "raise ID", "restore ID", "minimize ID", "close ID"
    int observerCount(qint64 pid) const {
        int count = 0;
        notify(pid, [&](const Observer&) { ++count; });
        return count;
    }

    // The port

    bool isTrusted() const override { return m_isTrusted; }
    void requestPermission() override { requests.append(QStringLiteral("permission")); }

    QList<WindowInfo> windows(qint64 pid) const override {
        QList<WindowInfo> found;
        for (const auto& window : windowList) {
            if (m_isTrusted && window.pid == pid)
                found.append(window.info);
        }
        return found;
    }
    std::optional<WindowID> focusedWindow(qint64 pid) const override { return at(m_focused, pid); }
    std::optional<WindowID> mainWindow(qint64 pid) const override {
        return mainWindows.contains(pid) ? at(mainWindows, pid) : focusedWindow(pid);
    }
    std::optional<QString> title(WindowID id) const override {
        const auto* window = m_isTrusted ? find(id) : nullptr;
        return window ? std::optional(window->info.title) : std::nullopt;
    }
    std::optional<QRect> frame(WindowID id) const override {
        const auto* window = m_isTrusted ? find(id) : nullptr;
        return window ? std::optional(window->frame) : std::nullopt;
    }
    Handle observe(qint64 pid, Observer observer) override { return m_observers.add({pid, std::move(observer)}); }

    void raise(WindowID window) override { request("raise", window); }
    void restore(WindowID window) override { request("restore", window); }
    void minimize(WindowID window) override { request("minimize", window); }
    void close(WindowID window) override { request("close", window); }

private:
    const Window* find(WindowID id) const {
        const auto found = std::ranges::find(windowList, id, [](const Window& window) { return window.info.id; });
        return found == windowList.end() ? nullptr : &*found;
    }
    Window* find(WindowID id) { return const_cast<Window*>(std::as_const(*this).find(id)); }
    std::optional<WindowID> at(const QHash<qint64, WindowID>& windows, qint64 pid) const {
        return m_isTrusted && windows.contains(pid) ? std::optional(windows.value(pid)) : std::nullopt;
    }
    template<class Tell>
    void notify(qint64 pid, const Tell& tell) const {
        m_observers.forEach([&](const auto& entry) {
            if (entry.first == pid)
                tell(entry.second);
        });
    }
    void request(const char* what, WindowID window) {
        requests.append(QLatin1StringView(what) + QLatin1Char(' ') + QString::number(window.value));
    }

    bool m_isTrusted = true;
    quint64 m_nextWindow = 1;
    QHash<qint64, WindowID> m_focused;
    Listeners<std::pair<qint64, Observer>> m_observers;
};

} // namespace fendrel
