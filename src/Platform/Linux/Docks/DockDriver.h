#pragma once

#include "Platform/Linux/Docks/DockSetting.h"

namespace fendrel {

/// One kind of dock. Main thread; one call at a time, whose answer may come before it returns.
class DockDriver {
public:
    using ReadDone = std::function<void(const std::optional<QList<DockSetting>>&)>; ///< nothing: nobody answers
    using ChangeDone = std::function<void(bool isChanged)>;

    virtual ~DockDriver() = default;

    virtual QString dock() const = 0;
    virtual QString name() const = 0;    ///< in the user's language, as it stands in the middle of a sentence
    virtual QString service() const = 0; ///< its name on the session bus while it runs

    /// While it does not run it has no edges, but its settings can be read and changed where somebody keeps them.
    virtual void setRunning(bool isRunning) = 0;
    const QList<Qt::Edge>& edges() const { return m_edges; } ///< where its panels are, without the upper one
    std::function<void()> onEdgesChanged = [] {};

    /// The settings of its panels, and those that `details` tell of.
    virtual Handle read(const QJsonObject& details, ReadDone done) = 0;
    virtual Handle change(const DockChanges& changes, ChangeDone done) = 0;
    /// Runs when what was changed is on the disk, for docks whose `change` does not wait for that. Other calls may come
    /// meanwhile.
    virtual Handle whenStored(const DockChanges& changes, std::function<void()> run);

protected:
    void setEdges(const QList<Qt::Edge>& ofPanels);

private:
    QList<Qt::Edge> m_edges;
};

} // namespace fendrel
