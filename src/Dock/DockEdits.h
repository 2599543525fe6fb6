#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

namespace fendrel {

class DockUndo;
class ModeEngine;
struct Mode;

/// Edits of modes that the user makes at the dock. Each takes effect at once and offers to be taken back. What is not
/// an edit (a mode that is gone, something that is there already) does nothing.
class DockEdits {
    Q_DECLARE_TR_FUNCTIONS(fendrel::DockEdits)
public:
    DockEdits(ModeEngine& engine, DockUndo& undo, std::function<QString(const QString& bundleID)> displayName,
              std::function<QString(const QString& widgetID)> widgetTitle);

    void add(const QString& bundleID, const QString& modeID);
    void move(const QString& bundleID, const QString& fromModeID, const QString& toModeID);
    void remove(const QString& bundleID, const QString& modeID); ///< taken back, it is at its old place again

    void addWidget(const QString& widgetID, const QString& modeID); ///< behind the others
    void removeWidget(const QString& widgetID, const QString& modeID);
    /// Puts these into the given order, in the places that they have together; the others stay where they are.
    void arrangeWidgets(const QStringList& widgetIDs, const QString& modeID);

private:
    void offer(const QString& text, const Mode& mode, const QString& name, std::function<void()> undo);
    void putBack(const QString& bundleID, const QString& modeID, const QString& successor);
    void putWidgetBack(const QString& widgetID, const QString& modeID, const QString& successor);
    void takeWidget(const QString& widgetID, const QString& modeID);
    static QString successor(const QString& id, const QStringList& list);

    ModeEngine& m_engine;
    DockUndo& m_undo;
    std::function<QString(const QString&)> m_displayName;
    std::function<QString(const QString&)> m_widgetTitle;
};

} // namespace fendrel
