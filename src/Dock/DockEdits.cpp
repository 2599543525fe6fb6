#include "Dock/DockEdits.h"

#include "Dock/DockUndo.h"
#include "Modes/ModeEngine.h"

namespace fendrel {

DockEdits::DockEdits(ModeEngine& engine, DockUndo& undo, std::function<QString(const QString&)> displayName,
                     std::function<QString(const QString&)> widgetTitle)
    : m_engine(engine), m_undo(undo), m_displayName(std::move(displayName)), m_widgetTitle(std::move(widgetTitle)) {}

void DockEdits::add(const QString& bundleID, const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || mode->apps.contains(bundleID))
        return;
    const Mode edited = *mode;
    m_engine.addApp(bundleID, modeID);
    offer(tr("Added %1 to %2"), edited, m_displayName(bundleID),
          [this, bundleID, modeID] { m_engine.removeApp(bundleID, modeID); });
}

void DockEdits::move(const QString& bundleID, const QString& fromModeID, const QString& toModeID) {
    const Mode* from = m_engine.mode(fromModeID);
    const Mode* to = m_engine.mode(toModeID);
    if (!from || !to || fromModeID == toModeID || !from->apps.contains(bundleID))
        return;
    const Mode edited = *to;
    const bool wasThere = to->apps.contains(bundleID);
    const QString next = successor(bundleID, from->apps);
    m_engine.removeApp(bundleID, fromModeID);
    m_engine.addApp(bundleID, toModeID);
    offer(tr("Moved %1 to %2"), edited, m_displayName(bundleID),
          [this, bundleID, fromModeID, toModeID, wasThere, next] {
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
    const QString next = successor(bundleID, edited.apps);
    m_engine.removeApp(bundleID, modeID);
    offer(tr("Removed %1 from %2"), edited, m_displayName(bundleID),
          [this, bundleID, modeID, next] { putBack(bundleID, modeID, next); });
}

void DockEdits::addWidget(const QString& widgetID, const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || mode->widgets.contains(widgetID))
        return;
    Mode edited = *mode;
    edited.widgets.append(widgetID);
    m_engine.update(edited);
    offer(tr("Added %1 to %2"), edited, m_widgetTitle(widgetID),
          [this, widgetID, modeID] { takeWidget(widgetID, modeID); });
}

void DockEdits::removeWidget(const QString& widgetID, const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || !mode->widgets.contains(widgetID))
        return;
    const Mode edited = *mode;
    const QString next = successor(widgetID, edited.widgets);
    takeWidget(widgetID, modeID);
    offer(tr("Removed %1 from %2"), edited, m_widgetTitle(widgetID),
          [this, widgetID, modeID, next] { putWidgetBack(widgetID, modeID, next); });
}

void DockEdits::arrangeWidgets(const QStringList& widgetIDs, const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode)
        return;
    Mode edited = *mode;
    QStringList wanted = widgetIDs;
    wanted.removeIf([&](const QString& id) { return !mode->widgets.contains(id); });
    wanted.removeDuplicates();
    for (qsizetype place = 0, next = 0; QString & id : edited.widgets)
        if (wanted.contains(mode->widgets[place++]))
            id = wanted[next++];
    m_engine.update(edited);
}

void DockEdits::offer(const QString& text, const Mode& mode, const QString& name, std::function<void()> undo) {
    m_undo.show(text.arg(name, mode.name), mode.tint, std::move(undo));
}

/// The mode as it is by then decides: its neighbour may be gone, and the application may be back already.
void DockEdits::putBack(const QString& bundleID, const QString& modeID, const QString& successor) {
    m_engine.addApp(bundleID, modeID);
    const Mode* mode = m_engine.mode(modeID);
    if (mode && mode->apps.contains(successor))
        m_engine.moveApp(bundleID, successor, false, modeID);
}

/// The same for a widget.
void DockEdits::putWidgetBack(const QString& widgetID, const QString& modeID, const QString& successor) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || mode->widgets.contains(widgetID))
        return;
    Mode edited = *mode;
    const qsizetype place = edited.widgets.indexOf(successor);
    edited.widgets.insert(place < 0 ? edited.widgets.size() : place, widgetID);
    m_engine.update(edited);
}

void DockEdits::takeWidget(const QString& widgetID, const QString& modeID) {
    if (const Mode* mode = m_engine.mode(modeID)) {
        Mode edited = *mode;
        edited.widgets.removeAll(widgetID);
        m_engine.update(edited);
    }
}

QString DockEdits::successor(const QString& id, const QStringList& list) {
    return list.value(list.indexOf(id) + 1);
}

} // namespace fendrel
