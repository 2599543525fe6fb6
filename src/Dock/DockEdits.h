#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

namespace fendrel {

class DockUndo;
class ModeEngine;
struct Mode;

/// Edits of modes that the user makes at the dock. Each takes effect at once and offers to be taken back. What is not
/// an edit (a mode that is gone, an application that is there already) does nothing.
class DockEdits {
    Q_DECLARE_TR_FUNCTIONS(fendrel::DockEdits)
public:
    DockEdits(ModeEngine& engine, DockUndo& undo, std::function<QString(const QString& bundleID)> displayName);

    void add(const QString& bundleID, const QString& modeID);
    void move(const QString& bundleID, const QString& fromModeID, const QString& toModeID);
    void remove(const QString& bundleID, const QString& modeID); ///< taken back, it is at its old place again

private:
    void offer(const QString& text, const Mode& mode, const QString& bundleID, std::function<void()> undo);
    void putBack(const QString& bundleID, const QString& modeID, const QString& successor);
    static QString successor(const QString& bundleID, const Mode& mode);

    ModeEngine& m_engine;
    DockUndo& m_undo;
    std::function<QString(const QString&)> m_displayName;
};

} // namespace fendrel
