#include "Dock/DockEdits.h"

#include "Dock/DockUndo.h"
#include "Modes/ModeEngine.h"

namespace fendrel {

DockEdits::DockEdits(ModeEngine& engine, DockUndo& undo, std::function<QString(const QString&)> displayName)
    : m_engine(engine), m_undo(undo), m_displayName(std::move(displayName)) {}

void DockEdits::add(const QString& bundleID, const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || mode->apps.contains(bundleID))
        return;
    const Mode edited = *mode;
    m_engine.addApp(bundleID, modeID);
    offer(tr("Added %1 to %2"), edited, bundleID, [this, bundleID, modeID] { m_engine.removeApp(bundleID, modeID); });
}

void DockEdits::move(const QString& bundleID, const QString& fromModeID, const QString& toModeID) {
    const Mode* from = m_engine.mode(fromModeID);
    const Mode* to = m_engine.mode(toModeID);
    if (!from || !to || fromModeID == toModeID || !from->apps.contains(bundleID))
        return;
    const Mode edited = *to;
    const bool wasThere = to->apps.contains(bundleID);
    const QString next = successor(bundleID, *from);
    m_engine.removeApp(bundleID, fromModeID);
    m_engine.addApp(bundleID, toModeID);
    offer(tr("Moved %1 to %2"), edited, bundleID, [this, bundleID, fromModeID, toModeID, wasThere, next] {
        if (!wasThere)
            m_engine.removeApp(bundleID, toModeID);
        putBack(bundleID, fromModeID, next);
    });
}

void DockEdits::remove(const QString& bundleID, const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || !mode->apps.contains(bundleID))
        return;
    const Mode edited = *mode;
    const QString next = successor(bundleID, edited);
    m_engine.removeApp(bundleID, modeID);
    offer(tr("Removed %1 from %2"), edited, bundleID,
          [this, bundleID, modeID, next] { putBack(bundleID, modeID, next); });
}

void DockEdits::offer(const QString& text, const Mode& mode, const QString& bundleID, std::function<void()> undo) {
    m_undo.show(text.arg(m_displayName(bundleID), mode.name), mode.tint, std::move(undo));
}

/// The mode as it is by then decides: its neighbour may be gone, and the application may be back already.
void DockEdits::putBack(const QString& bundleID, const QString& modeID, const QString& successor) {
    m_engine.addApp(bundleID, modeID);
    const Mode* mode = m_engine.mode(modeID);
    if (mode && mode->apps.contains(successor))
        m_engine.moveApp(bundleID, successor, false, modeID);
}

QString DockEdits::successor(const QString& bundleID, const Mode& mode) {
    return mode.apps.value(mode.apps.indexOf(bundleID) + 1);
}

} // namespace fendrel
