#include "Modes/ModeSuggestions.h"

#include "Modes/ModeEngine.h"
#include "Ports/IdleTime.h"

#include <algorithm>
#include <array>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto idleAfter = 10min;
constexpr auto idlePace = 1min; ///< how soon it is seen that the user is back
constexpr auto inFront = 20s;
constexpr auto callAhead = 300s;
constexpr auto callBehind = 120s;
constexpr auto calendarPace = 60s;
constexpr auto coolDown = 30min;
constexpr auto stays = 30s;
constexpr auto staysAfterHover = 4s;

const QString meeting = u"meeting"_s;

} // namespace

ModeSuggestions::ModeSuggestions(ModeEngine& engine, IdleTime& idleTime, Clock& clock)
    : m_engine(engine),
      m_idleTime(idleTime),
      m_clock(clock),
      m_modeID(engine.current().id),
      m_since(clock.continuousNow()) {}

QString ModeSuggestions::callApp(const QString& host) {
    static const std::array<std::pair<QString, QString>, 5> apps{{{u"zoom.us"_s, u"us.zoom.xos"_s},
                                                                  {u"teams.microsoft.com"_s, u"com.microsoft.teams2"_s},
                                                                  {u"teams.live.com"_s, u"com.microsoft.teams2"_s},
                                                                  {u"webex.com"_s, u"Cisco-Systems.Spark"_s},
                                                                  {u"facetime.apple.com"_s, u"com.apple.FaceTime"_s}}};
    const auto found = std::ranges::find_if(apps, [&](const auto& app) { return Mode::site(host, {app.first}); });
    return found == apps.end() ? QString() : found->second;
}

void ModeSuggestions::frontChanged(const QString& bundleID) {
    if (std::exchange(m_front, bundleID) == bundleID)
        return;
    m_since = m_clock.continuousNow();
    schedule();
}

void ModeSuggestions::update() {
    settle();
    if (mayPropose() && !isIdle()) {
        offerCall();
        offerFront();
    }
    schedule();
}

/// What no longer fits goes. Whoever has just entered a mode did not stray into the application in front.
void ModeSuggestions::settle() {
    if (std::exchange(m_modeID, m_engine.current().id) != m_engine.current().id)
        m_since = m_clock.continuousNow();
    if (!m_suggestion)
        return;
    if (!mayPropose()) {
        m_made.remove({m_suggestion->mode.id, m_suggestion->bundleID}); // it may come back: the user did not answer it
        dismiss();
    } else if (!isElsewhere(m_suggestion->mode.id)) {
        dismiss();
    } else if (m_suggestion->call) {
        settleCall();
    }
}

/// The call that is shown may have been moved or called off, and comes nearer.
void ModeSuggestions::settleCall() {
    if (!calls().contains(*m_suggestion->call)) {
        m_made.remove({m_suggestion->mode.id, {}});
        dismiss();
    } else if (const QString now = because(*m_suggestion->call); m_suggestion->because != now) {
        m_suggestion->because = now;
        Q_EMIT changed();
    }
}

void ModeSuggestions::offerCall() {
    const Mode* mode = callMode();
    if (!mode)
        return;
    if (!m_calendarReadAt || m_clock.continuousNow() - *m_calendarReadAt >= calendarPace) {
        m_calendarReadAt = m_clock.continuousNow();
        readCalendar();
    }
    const WallTime now = m_clock.now();
    const auto known = calls();
    const auto call = std::ranges::find_if(
        known, [now](const Call& each) { return each.start - now <= callAhead && now - each.start <= callBehind; });
    if (call == known.end())
        return;
    offer({.mode = *mode, .because = because(*call), .icon = callApp(call->host), .call = *call},
          std::max<Clock::Duration>(call->start - now + callBehind, stays));
}

QString ModeSuggestions::because(const Call& call) const {
    const auto minutes = std::chrono::ceil<std::chrono::minutes>(call.start - m_clock.now()).count();
    const QString title = call.title.simplified().isEmpty() ? tr("A call") : call.title.simplified();
    return minutes < 1 ? tr("%1 has started.").arg(title)
                       : tr("%1 starts in %n min.", nullptr, static_cast<int>(minutes)).arg(title);
}

void ModeSuggestions::offerFront() {
    const auto wait = untilFront();
    if (!wait || *wait > 0s)
        return;
    offer({.mode = *frontMode(),
           .because = tr("You opened %1.").arg(displayName(m_front)),
           .bundleID = m_front,
           .icon = m_front},
          stays);
}

/// Refuses what was proposed a while ago.
void ModeSuggestions::offer(const Suggestion& suggestion, Clock::Duration stay) {
    if (coolingDown(suggestion.mode.id, suggestion.bundleID) > 0s)
        return;
    const auto now = m_clock.continuousNow();
    m_made.removeIf([now](const auto& made) { return now - made.value() >= coolDown; });
    m_made.insert({suggestion.mode.id, suggestion.bundleID}, now);
    m_suggestion = suggestion;
    m_suggestion->madeAt = m_clock.now();
    scheduleHide(stay);
    Q_EMIT changed();
}

void ModeSuggestions::accept() {
    if (!m_suggestion)
        return;
    const QString modeID = m_suggestion->mode.id;
    dismiss();
    if (const Mode* mode = m_engine.mode(modeID))
        m_engine.requestSwitch(Mode(*mode));
}

void ModeSuggestions::dismiss() {
    if (!m_suggestion)
        return;
    m_suggestion.reset();
    m_isHovered = false;
    m_hide.reset();
    schedule();
    Q_EMIT changed();
}

void ModeSuggestions::setHovered(bool isHovered) {
    if (std::exchange(m_isHovered, isHovered) == isHovered || !m_suggestion)
        return;
    if (isHovered)
        m_hide.reset();
    else
        scheduleHide(std::max<Clock::Duration>(m_hideAt - m_clock.continuousNow(), staysAfterHover));
}

void ModeSuggestions::scheduleHide(Clock::Duration after) {
    m_hideAt = m_clock.continuousNow() + after;
    m_hide.reset();
    if (!m_isHovered)
        m_hide = m_clock.after(after, [this] { dismiss(); });
}

/// The next look, for the moment at which time alone may bring something; none when it can bring nothing.
void ModeSuggestions::schedule() {
    m_check.reset();
    if (!mayPropose())
        return;
    const auto earlier = [](std::optional<Clock::Duration> one, std::optional<Clock::Duration> other) {
        return one && other ? std::min(one, other) : std::max(one, other);
    };
    auto wait = earlier(untilCall(), untilFront());
    if (wait && isIdle())
        wait = std::max<Clock::Duration>(*wait, idlePace);
    wait = earlier(wait, untilMinute());
    if (!wait)
        return;
    m_check = m_clock.after(*wait, [this] { update(); });
}

bool ModeSuggestions::isIdle() const {
    return m_idleTime.sinceLastInput().value_or(0ms) >= idleAfter;
}

bool ModeSuggestions::isElsewhere(const QString& modeID) const {
    const auto& pending = m_engine.pending();
    return m_engine.mode(modeID) && m_engine.current().id != modeID && !(pending && pending->target.id == modeID);
}

/// The other mode that the application in front belongs to.
const Mode* ModeSuggestions::frontMode() const {
    const bool isFine = m_engine.catalog().sharedApps.contains(m_front) || isAllowed(m_front);
    const Mode* mode = isFine ? nullptr : m_engine.listing(m_front);
    return mode && isElsewhere(mode->id) ? mode : nullptr;
}

/// The mode of calls, if that could be proposed for one.
const Mode* ModeSuggestions::callMode() const {
    return isElsewhere(meeting) && hasCalendar() ? m_engine.mode(meeting) : nullptr;
}

Clock::Duration ModeSuggestions::coolingDown(const QString& modeID, const QString& bundleID) const {
    const auto made = m_made.constFind({modeID, bundleID});
    return made == m_made.constEnd() ? 0s : std::max<Clock::Duration>(*made + coolDown - m_clock.continuousNow(), 0s);
}

/// 0: it is time to propose the mode of what is in front.
std::optional<Clock::Duration> ModeSuggestions::untilFront() const {
    const Mode* mode = frontMode();
    const bool isCallShown = m_suggestion && m_suggestion->call; // and would not come back
    if (!mode || isCallShown)
        return {};
    const Clock::Duration wait = m_since + inFront - m_clock.continuousNow();
    return std::max({wait, coolingDown(mode->id, m_front), Clock::Duration::zero()});
}

/// A call may be known then, or be near enough.
std::optional<Clock::Duration> ModeSuggestions::untilCall() const {
    if (!callMode())
        return {};
    const auto now = m_clock.continuousNow();
    Clock::Duration wait = m_calendarReadAt ? *m_calendarReadAt + calendarPace - now : Clock::Duration::zero();
    for (const Call& call : calls()) {
        if (const auto until = call.start - callAhead - m_clock.now(); until > 0s)
            wait = std::min<Clock::Duration>(wait, until);
    }
    return std::max({wait, coolingDown(meeting, {}), Clock::Duration::zero()});
}

/// What is said of the call that is shown is no longer true then.
std::optional<Clock::Duration> ModeSuggestions::untilMinute() const {
    if (!m_suggestion || !m_suggestion->call || m_suggestion->call->start <= m_clock.now())
        return {};
    const auto ahead = m_suggestion->call->start - m_clock.now();
    return ahead - (std::chrono::ceil<std::chrono::minutes>(ahead) - 1min);
}

} // namespace fendrel
