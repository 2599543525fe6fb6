#include "Focus/SeenApps.h"

#include "Base/Seconds.h"
#include "Ports/Clock.h"
#include "Ports/SettingsStore.h"

#include <algorithm>

namespace fendrel {

namespace {

const QString key = QStringLiteral("seenApps");

} // namespace

SeenApps::SeenApps(SettingsStore& settings, const Clock& clock)
    : m_settings(settings),
      m_clock(clock),
      m_seen(settings.read<QHash<QString, double>>(key).value_or(QHash<QString, double>())) {}

QList<SeenApp> SeenApps::recent() const {
    const WallTime now = m_clock.now();
    QList<SeenApp> apps;
    for (auto seen = m_seen.begin(); seen != m_seen.end(); ++seen) {
        const WallTime at(std::chrono::round<std::chrono::milliseconds>(Seconds(seen.value())));
        // The clock may have been set back: what lies ahead was seen, but nobody knows when.
        if (at <= now && now - at < reach)
            apps.append({.bundleID = seen.key(), .lastSeen = at});
    }
    std::ranges::sort(apps, [](const SeenApp& left, const SeenApp& right) {
        return left.lastSeen != right.lastSeen ? left.lastSeen > right.lastSeen : left.bundleID < right.bundleID;
    });
    if (apps.size() > most)
        apps.resize(most);
    return apps;
}

void SeenApps::cameToFront(const QString& bundleID) {
    if (bundleID.isEmpty())
        return;
    m_seen[bundleID] = Seconds(m_clock.now().time_since_epoch()).count();
    QHash<QString, double> kept;
    for (const SeenApp& app : recent())
        kept.insert(app.bundleID, m_seen.value(app.bundleID));
    m_seen = kept;
    m_settings.set(key, m_seen, SettingsStore::Urgency::relaxed);
    Q_EMIT changed();
}

} // namespace fendrel
