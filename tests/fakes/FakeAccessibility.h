#pragma once

#include "Platform/Shared/Listeners.h"
#include "Ports/Accessibility.h"

#include <QHash>
#include <QStringList>

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
        if (const auto* window = find(id)) {
            m_focused.insert(window->pid, id);
            notifyWindowChanged(window->pid);
        }
    }
    void setTitle(WindowID id, const QString& title) {
        auto* window = find(id);
        if (!window)
            return;
        window->info.title = title;
        m_observers.forEach([pid = window->pid, id](const auto& entry) {
            if (entry.first == pid && entry.second.onTitleChanged)
                entry.second.onTitleChanged(id);
        });
    }
    /// The application's first other window takes the focus if this one had it.
    void removeWindow(WindowID id) {
        const auto* window = find(id);
        if (!window)
            return;
        const qint64 pid = window->pid;
        windowList.removeIf([id](const Window& each) { return each.info.id == id; });
        if (m_focused.value(pid) != id)
            return;
        m_focused.remove(pid);
        if (const auto left = windows(pid); !left.isEmpty())
            m_focused.insert(pid, left.first().id);
        notifyWindowChanged(pid);
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
        m_observers.forEach([&](const auto& entry) { count += entry.first == pid ? 1 : 0; });
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
    std::optional<WindowID> focusedWindow(qint64 pid) const override {
        const auto found = m_focused.constFind(pid);
        return m_isTrusted && found != m_focused.constEnd() ? std::optional(*found) : std::nullopt;
    }
    std::optional<WindowID> mainWindow(qint64 pid) const override {
        const auto found = mainWindows.constFind(pid);
        return m_isTrusted && found != mainWindows.constEnd() ? std::optional(*found) : focusedWindow(pid);
    }
    std::optional<QString> title(WindowID id) const override {
        const auto* window = m_isTrusted ? find(id) : nullptr;
        return window ? std::optional(window->info.title) : std::nullopt;
    }
    std::optional<QRect> frame(WindowID id) const override {
        const auto* window = m_isTrusted ? find(id) : nullptr;
        return window ? std::optional(window->frame) : std::nullopt;
    }
    Handle observe(qint64 pid, Observer observer) override {
        return m_observers.add({pid, std::move(observer)});
    }

    void raise(WindowID window) override { request("raise", window); }
    void restore(WindowID window) override { request("restore", window); }
    void minimize(WindowID window) override { request("minimize", window); }
    void close(WindowID window) override { request("close", window); }

private:
    const Window* find(WindowID id) const {
        for (const auto& window : windowList) {
            if (window.info.id == id)
                return &window;
        }
        return nullptr;
    }
    Window* find(WindowID id) { return const_cast<Window*>(std::as_const(*this).find(id)); }
    void notifyWindowChanged(qint64 pid) {
        m_observers.forEach([pid](const auto& entry) {
            if (entry.first == pid && entry.second.onWindowChanged)
                entry.second.onWindowChanged();
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
