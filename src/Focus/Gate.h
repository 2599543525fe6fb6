#pragma once

#include "Modes/Mode.h"
#include "Ports/Clock.h"

#include <QObject>

#include <optional>

namespace fendrel {

/// What the gate stops now, and what the user types into it. Main thread.
class Gate : public QObject {
    Q_OBJECT
public:
    struct Blocked {
        qint64 pid{};
        QString bundleID{};
        QString name{};
        std::optional<Mode> owner{};   ///< the mode it belongs to
        std::optional<QString> note{}; ///< what the judgement says it is
        bool operator==(const Blocked&) const = default;
    };

    explicit Gate(const Clock& clock) : m_clock(clock) {}

    const std::optional<Blocked>& blocked() const { return m_blocked; }
    Seconds waited() const; ///< how long it has been up; 0 while it is closed
    const QString& reason() const { return m_reason; }
    void setReason(const QString& reason);

    /// Shows the gate for something; for what it shows already it only asks for attention again.
    void open(const Blocked& blocked);
    void close();

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
