#pragma once

#include "Modes/Mode.h"
#include "Modes/ModeCatalog.h"
#include "Modes/ModeIndex.h"
#include "Ports/Clock.h"

#include <QObject>

#include <functional>
#include <optional>

namespace fendrel {

class ModeStore;
class SettingsStore;

struct PendingSwitch {
    Mode target{};
    ContinuousTime due{}; ///< so that neither sleep nor a new wall clock changes the wait
};

/// The list of modes and the current one: edits modes on the user's behalf and switches between them. A switch can cost
/// a wait, during which it is pending. Main thread.
class ModeEngine : public QObject {
    Q_OBJECT
public:
    /// Loads the modes; seeds them from the catalogue's starters, with what is installed, when there are none.
    ModeEngine(ModeStore& store, SettingsStore& settings, Clock& clock, ModeCatalog catalog,
               std::function<bool(const QString& bundleID)> isInstalled);

    std::function<Seconds(const Mode& target)> entryDelay = [](const Mode&) { return Seconds{}; };
    std::function<void(const Mode& mode)> onCommit = [](const Mode&) {};
    std::function<void()> onEdit = [] {}; ///< modes came, went or changed; the current one is still the same

    bool startedWithoutModes() const { return m_startedWithoutModes; } ///< none were stored
    const ModeCatalog& catalog() const { return m_catalog; }
    const QList<Mode>& modes() const { return m_modes; }
    const Mode& current() const { return m_current; }
    const std::optional<PendingSwitch>& pending() const { return m_pending; }
    Seconds pendingRemaining() const; ///< 0 when nothing is pending

    /// Asks for a mode. Asking for the one that is pending cuts its wait by 3 s; asking for the current one cancels.
    void requestSwitch(const Mode& target);
    void cancelPending();
    void commit(const Mode& mode);

    const Mode* mode(const QString& id) const; ///< valid until the modes change; null when there is none
    const Mode* owner(const QString& bundleID) const;
    /// The mode that an application or site belongs to by the lists: the current one if it lists it, else the first.
    const Mode* listing(const QString& bundleID) const;
    const Mode* listingSite(const QString& host) const;

    void addApp(const QString& bundleID, const QString& modeID);
    void addSite(const QString& site, const QString& modeID);
    void moveApp(const QString& bundleID, const QString& neighbour, bool after, const QString& modeID);
    void removeApp(const QString& bundleID, const QString& modeID);
    void removeSite(const QString& site, const QString& modeID);
    void update(const Mode& mode);
    /// Moves the modes at these positions, in their order, before the one at `target` (counted before the move).
    void moveModes(const QList<qsizetype>& positions, qsizetype target);
    void addMode(const Mode& mode);              ///< ignored when the id is taken
    void deleteMode(const QString& id);          ///< the last mode stays: there is always a current one
    void replaceModes(const QList<Mode>& modes); ///< an empty list is ignored

    /// A template with the applications that are installed, or that the user once added to some mode.
    Mode seeded(const Mode& modeTemplate) const;

Q_SIGNALS:
    void changed(); ///< the list, the current mode or the pending switch

private:
    void schedule();
    void didEdit();
    void seedMissingParts();
    void edit(const QString& modeID, const std::function<bool(Mode&)>& change);

    ModeStore& m_store;
    SettingsStore& m_settings;
    Clock& m_clock;
    ModeCatalog m_catalog;
    std::function<bool(const QString&)> m_isInstalled;
    QList<Mode> m_modes;
    bool m_startedWithoutModes;
    ModeIndex m_index;
    Mode m_current;
    qsizetype m_currentPosition = -1;
    std::optional<PendingSwitch> m_pending;
    Handle m_wait;
};

} // namespace fendrel
