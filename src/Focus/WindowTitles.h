#pragma once

#include "Ports/Accessibility.h"
#include "Ports/Applications.h"

#include <QObject>

#include <functional>
#include <optional>

namespace fendrel {

/// Knows which application is in front and the title of its focused window. Main thread.
class WindowTitles : public QObject {
    Q_OBJECT
public:
    struct Front {
        qint64 pid{};
        QString bundleID{};
        QString appName{};              ///< the bundle identifier when the system knows no name
        std::optional<QString> title{}; ///< trimmed; nothing without permission or a readable window
        bool operator==(const Front&) const = default;
    };

    explicit WindowTitles(Accessibility& accessibility);

    std::function<void(const std::optional<Front>&)> onChange = [](const auto&) {};

    const std::optional<Front>& front() const { return m_front; }
    std::optional<WindowID> window() const { return m_window; } ///< the window whose title is followed
    bool isTrusted() const { return m_isTrusted; }
    void requestPermission();

    /// Follows another application. This application itself is passed over: what was in front stays. Nothing means that
    /// no window is active.
    void track(const std::optional<RunningApp>& app);

Q_SIGNALS:
    void changed();

private:
    void observe();
    void checkTrust();
    void windowDidChange();
    void readTitle();
    void publish(const std::optional<Front>& front);

    Accessibility& m_accessibility;
    bool m_isTrusted;
    std::optional<RunningApp> m_app;
    std::optional<WindowID> m_window;
    Handle m_observer;
    std::optional<Front> m_front;
};

} // namespace fendrel
