#pragma once

#include "Base/Seconds.h"
#include "Modes/Mode.h"
#include "Ports/Clock.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <optional>

namespace fendrel {

class IdleTime;
class SettingsStore;

/// Counts, for the calendar day, the time spent in each mode, and how much of each mode's daily allowance went to
/// things of other modes. Main thread.
class DriftBudget : public QObject {
    Q_OBJECT
public:
    DriftBudget(SettingsStore& settings, Clock& clock, const IdleTime& idleTime);

    std::function<std::optional<Mode>()> spending = [] { return std::optional<Mode>(); }; ///< whose allowance, now
    std::function<std::optional<Mode>()> current = [] { return std::optional<Mode>(); };
    std::function<void(const Mode&)> onUsedUp = [](const Mode&) {}; ///< once a day for a mode

    Seconds used(const QString& modeID) const { return Seconds(m_used.value(modeID)); }
    Seconds inMode(const QString& modeID) const { return Seconds(m_inMode.value(modeID)); }
    Seconds remaining(const Mode& mode) const;
    double fraction(const Mode& mode) const; ///< share of the allowance that is used, 0 to 1; 0 without an allowance
    bool isUsedUp(const Mode& mode) const;

    void update(); ///< one tick

Q_SIGNALS:
    void changed();

private:
    QString today() const;
    void save();

    SettingsStore& m_settings;
    Clock& m_clock;
    const IdleTime& m_idleTime;
    QHash<QString, double> m_used;   ///< seconds by mode
    QHash<QString, double> m_inMode; ///< seconds by mode
    QString m_day;
    ContinuousTime m_lastTick;
    Handle m_timer;
};

} // namespace fendrel
