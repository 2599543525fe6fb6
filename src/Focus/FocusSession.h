#pragma once

#include "Base/Seconds.h"
#include "Ports/Clock.h"

#include <QObject>

#include <functional>
#include <optional>

namespace fendrel {

class SettingsStore;

/// Whether the user is in a focus session, and when a timed one ends. Survives a restart. Main thread.
///
/// The end is a moment of the wall clock, so that a session that ends at three ends at three. Setting the clock back
/// moves that moment back with it: the session lasts as long as it was meant to.
class FocusSession : public QObject {
    Q_OBJECT
public:
    /// Restores the session that ran when the program ended, if its end has not passed; calls no hook.
    FocusSession(SettingsStore& settings, Clock& clock);

    std::function<void(bool isOn)> onChange = [](bool) {}; ///< after every start, also of a running session, and stop

    bool isOn() const { return m_isOn; }
    const std::optional<WallTime>& endsAt() const { return m_endsAt; } ///< nothing for an open-ended session
    std::optional<Seconds> remaining() const;                          ///< nothing for an open-ended session

    /// Starts a session, open-ended without a duration; a running one gets the new end.
    void start(std::optional<Seconds> duration = {});
    void stop();

Q_SIGNALS:
    void changed();

private:
    void save();
    void endAt(WallTime end);
    void scheduleEnd();
    void wallClockWasSet();

    SettingsStore& m_settings;
    Clock& m_clock;
    bool m_isOn = false;
    std::optional<WallTime> m_endsAt;
    WallTime m_meantEnd{};         ///< the end as it was when it was chosen
    ContinuousTime m_lastsUntil{}; ///< the same on the continuous clock
    Handle m_timer;
    Handle m_wallClockWatch;
};

} // namespace fendrel
