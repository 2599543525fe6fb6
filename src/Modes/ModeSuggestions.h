#pragma once

#include "Base/WallTime.h"
#include "Modes/Mode.h"
#include "Ports/Clock.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <optional>

namespace fendrel {

class IdleTime;
class ModeEngine;

/// Proposes a switch when it is called for: before a call, and when the user stays in another mode's application. It
/// never switches by itself. Main thread.
class ModeSuggestions : public QObject {
    Q_OBJECT
public:
    /// An event with a video call.
    struct Call {
        QString title{};
        WallTime start{};
        QString host{}; ///< of its link, in lower case
        bool operator==(const Call&) const = default;
    };
    struct Suggestion {
        Mode mode{};
        QString because{};  ///< for the user
        QString bundleID{}; ///< of the application that it is about; empty for a call
        QString icon{};     ///< bundle identifier of the application to show with it; may be empty
        std::optional<Call> call{};
        WallTime madeAt{};
        bool operator==(const Suggestion&) const = default;
    };

    ModeSuggestions(ModeEngine& engine, IdleTime& idleTime, Clock& clock);

    std::function<bool()> hasCalendar = [] { return false; };
    std::function<void()> readCalendar = [] {};                        ///< what it finds is in `calls` then, or later
    std::function<QList<Call>()> calls = [] { return QList<Call>(); }; ///< by their start
    std::function<QString(const QString& bundleID)> displayName = [](const QString& bundleID) { return bundleID; };
    std::function<bool(const QString& bundleID)> isAllowed = [](const QString&) {
        return false;
    };                                                      ///< by the user, here
    std::function<bool()> mayPropose = [] { return true; }; ///< nothing else asks the user

    const std::optional<Suggestion>& suggestion() const { return m_suggestion; }

    /// The application of calls with links to that host, or to one below it; empty when none is known.
    static QString callApp(const QString& host);

    /// Another application came to the front; an empty identifier: none that is known.
    void frontChanged(const QString& bundleID);
    /// Looks whether there is something to propose, as it does by itself when time alone can bring it. To be called
    /// when the modes, the calendar, what is allowed or whether it may propose have changed.
    void update();
    void accept(); ///< asks the engine for the mode
    void dismiss();
    void setHovered(bool isHovered); ///< the pointer is on it: it stays

Q_SIGNALS:
    void changed();

private:
    void settle();
    void settleCall();
    QString because(const Call& call) const;
    void offerCall();
    void offerFront();
    void offer(const Suggestion& suggestion, Clock::Duration stay);
    void schedule();
    void scheduleHide(Clock::Duration after);

    bool isIdle() const;
    bool isElsewhere(const QString& modeID) const;
    const Mode* frontMode() const;
    const Mode* callMode() const;
    Clock::Duration coolingDown(const QString& modeID, const QString& bundleID) const;
    std::optional<Clock::Duration> untilFront() const;
    std::optional<Clock::Duration> untilCall() const;
    std::optional<Clock::Duration> untilMinute() const;

    ModeEngine& m_engine;
    IdleTime& m_idleTime;
    Clock& m_clock;
    QString m_front; ///< bundle identifier
    QString m_modeID;
    ContinuousTime m_since; ///< both the front and the mode are what they are
    std::optional<ContinuousTime> m_calendarReadAt;
    std::optional<Suggestion> m_suggestion;
    QHash<std::pair<QString, QString>, ContinuousTime> m_made; ///< when, by mode and application
    Handle m_check;
    bool m_isHovered = false;
    ContinuousTime m_hideAt{};
    Handle m_hide;
};

} // namespace fendrel
