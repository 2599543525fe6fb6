#include "Focus/DriftBudget.h"

#include "Ports/IdleTime.h"
#include "Ports/SettingsStore.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString dayKey = u"driftBudgetDay"_s;
const QString usedKey = u"driftBudgetUsed"_s;
const QString inModeKey = u"timeInModeToday"_s;

constexpr Seconds longestTick = 10s; ///< a machine that slept does not count the night
constexpr auto idleAfter = 120s;

} // namespace

DriftBudget::DriftBudget(SettingsStore& settings, Clock& clock, const IdleTime& idleTime)
    : m_settings(settings),
      m_clock(clock),
      m_idleTime(idleTime),
      m_day(today()),
      m_lastTick(clock.continuousNow()),
      m_timer(clock.every(5s, 1s, [this] { update(); })) {
    if (m_settings.read<QString>(dayKey) == m_day) {
        m_used = m_settings.read<QHash<QString, double>>(usedKey).value_or(QHash<QString, double>());
        m_inMode = m_settings.read<QHash<QString, double>>(inModeKey).value_or(QHash<QString, double>());
    }
}

QString DriftBudget::today() const {
    return toDateTime(m_clock.now()).toLocalTime().date().toString(Qt::ISODate);
}

Seconds DriftBudget::remaining(const Mode& mode) const {
    return std::max(Seconds{}, mode.dailyBudget - used(mode.id));
}

double DriftBudget::fraction(const Mode& mode) const {
    if (mode.dailyBudget <= Seconds{})
        return 0;
    return std::min(1.0, used(mode.id) / mode.dailyBudget);
}

bool DriftBudget::isUsedUp(const Mode& mode) const {
    return mode.dailyBudget > Seconds{} && used(mode.id) >= mode.dailyBudget;
}

void DriftBudget::update() {
    const ContinuousTime now = m_clock.continuousNow();
    const Seconds elapsed = std::min(Seconds(now - m_lastTick), longestTick);
    m_lastTick = now;
    if (const QString day = today(); day != m_day) {
        m_used.clear();
        m_inMode.clear();
        m_day = day;
        save();
        Q_EMIT changed();
    }
    if (m_idleTime.sinceLastInput().value_or(0ms) >= idleAfter)
        return;
    const auto mode = current();
    if (!mode)
        return;
    m_inMode[mode->id] += elapsed.count();
    const auto spent = spending();
    const bool isCounted = spent && spent->dailyBudget > Seconds{};
    const bool wasUsedUp = isCounted && isUsedUp(*spent);
    if (isCounted)
        m_used[spent->id] += elapsed.count();
    save();
    Q_EMIT changed();
    if (isCounted && !wasUsedUp && isUsedUp(*spent))
        onUsedUp(*spent);
}

void DriftBudget::save() {
    // Counters that grow every few seconds need not wear the disk.
    constexpr auto urgency = SettingsStore::Urgency::relaxed;
    m_settings.set(dayKey, m_day, urgency);
    m_settings.set(usedKey, m_used, urgency);
    m_settings.set(inModeKey, m_inMode, urgency);
}

} // namespace fendrel
