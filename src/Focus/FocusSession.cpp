#include "Focus/FocusSession.h"

#include "Ports/SettingsStore.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString onKey = u"focusOn"_s;
const QString endsAtKey = u"focusEndsAt"_s;

} // namespace

FocusSession::FocusSession(SettingsStore& settings, Clock& clock)
    : m_settings(settings), m_clock(clock), m_wallClockWatch(clock.onWallClockSet([this] { wallClockWasSet(); })) {
    if (!m_settings.flag(onKey))
        return;
    const auto stored = m_settings.read<QDateTime>(endsAtKey);
    if (stored && stored->isValid()) {
        const WallTime end = toWallTime(*stored);
        if (end <= m_clock.now()) {
            save();
            return;
        }
        endAt(end);
    }
    m_isOn = true;
}

std::optional<Seconds> FocusSession::remaining() const {
    if (!m_endsAt)
        return {};
    return std::max(Seconds{}, Seconds(*m_endsAt - m_clock.now()));
}

void FocusSession::start(std::optional<Seconds> duration) {
    m_isOn = true;
    m_endsAt.reset();
    m_timer.reset();
    if (duration)
        endAt(m_clock.now() + std::chrono::round<std::chrono::milliseconds>(*duration));
    save();
    Q_EMIT changed();
    onChange(true);
}

void FocusSession::stop() {
    if (!m_isOn)
        return;
    m_isOn = false;
    m_endsAt.reset();
    m_timer.reset();
    save();
    Q_EMIT changed();
    onChange(false);
}

void FocusSession::save() {
    m_settings.set(onKey, m_isOn);
    if (m_endsAt)
        m_settings.set(endsAtKey, toDateTime(*m_endsAt));
    else
        m_settings.remove(endsAtKey);
}

void FocusSession::endAt(WallTime end) {
    m_endsAt = m_meantEnd = end;
    m_lastsUntil = m_clock.continuousNow() + (end - m_clock.now());
    scheduleEnd();
}

void FocusSession::scheduleEnd() {
    const auto wait = std::max(std::chrono::milliseconds{0}, *m_endsAt - m_clock.now());
    m_timer = m_clock.after(wait, [this] { stop(); });
}

void FocusSession::wallClockWasSet() {
    if (!m_endsAt)
        return;
    // From what was meant at the start, not from the last adjustment: a clock that is put right again changes nothing.
    const auto left = std::chrono::round<std::chrono::milliseconds>(m_lastsUntil - m_clock.continuousNow());
    m_endsAt = std::min(m_meantEnd, m_clock.now() + left);
    save();
    scheduleEnd();
    Q_EMIT changed();
}

} // namespace fendrel
