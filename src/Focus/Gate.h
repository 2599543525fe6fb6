#pragma once

#include "Focus/BrowserTab.h"
#include "Modes/Mode.h"
#include "Ports/Clock.h"

#include <QObject>

#include <functional>
#include <optional>
#include <variant>

namespace fendrel {

struct BlockedApp {
    qint64 pid{};
    QString bundleID{};
    bool operator==(const BlockedApp&) const = default;
};

struct BlockedSite {
    QString host{};
    TabKey tab{};
    bool operator==(const BlockedSite&) const = default;
};

/// What the gate stops now, and what the user types into it. Main thread.
class Gate : public QObject {
    Q_OBJECT
public:
    using App = BlockedApp;
    using Site = BlockedSite;
    struct Blocked {
        std::variant<App, Site> subject{};
        QString name{};                ///< of the application, or the site's host
        std::optional<Mode> owner{};   ///< the mode it belongs to
        std::optional<QString> note{}; ///< what the judgement says it is
        bool operator==(const Blocked&) const = default;

        const App* app() const { return std::get_if<App>(&subject); }
        const Site* site() const { return std::get_if<Site>(&subject); }
    };

    explicit Gate(const Clock& clock) : m_clock(clock) {}

    const std::optional<Blocked>& blocked() const { return m_blocked; }
    const App* blockedApp() const { return m_blocked ? m_blocked->app() : nullptr; }
    const Site* blockedSite() const { return m_blocked ? m_blocked->site() : nullptr; }
    Seconds waited() const; ///< how long it has been up; 0 while it is closed
    const QString& reason() const { return m_reason; }
    void setReason(const QString& reason);

    /// Shows the gate for something; for what it shows already it only asks for attention again.
    void open(const Blocked& blocked);
    void close();
    /// Closes without an answer: what was asked about is not there any more.
    void withdraw();
    std::function<void(const Blocked&)> onWithdrawn = [](const Blocked&) {};

Q_SIGNALS:
    void changed();
    void attentionAsked(); ///< the panel is to come to the front with the keyboard

private:
    const Clock& m_clock;
    std::optional<Blocked> m_blocked;
    ContinuousTime m_openedAt{};
    QString m_reason;
};

} // namespace fendrel
