#pragma once

#include "Base/WallTime.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

namespace fendrel {

class Clock;
class SettingsStore;

struct SeenApp {
    QString bundleID{};
    WallTime lastSeen{};
    bool operator==(const SeenApp&) const = default;
};

/// Which applications were in front in the last day, so that an edit of the modes can be tried on what the user really
/// works with. Keeps the latest moment of each and nothing else: no titles, no durations. Main thread.
class SeenApps : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::hours reach{24};
    static constexpr qsizetype most = 100; ///< of a day with more, the latest are kept

    SeenApps(SettingsStore& settings, const Clock& clock);

    void cameToFront(const QString& bundleID); ///< an empty one is nobody's and left out
    QList<SeenApp> recent() const;             ///< of the last day, the latest first

Q_SIGNALS:
    void changed();

private:
    SettingsStore& m_settings;
    const Clock& m_clock;
    QHash<QString, double> m_seen; ///< seconds since 1970, by bundle identifier
};

} // namespace fendrel
