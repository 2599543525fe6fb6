#pragma once

#include "Base/Handle.h"

#include <QJsonObject>
#include <QList>
#include <QString>
#include <Qt>

#include <functional>
#include <optional>

namespace fendrel {

constexpr double hidingDelay = 1000.0; ///< seconds that a dock waits which is kept away for good: nobody else's does

/// What says whether a dock of the system's shows: its own settings. Absent: not set, so that its default holds.
struct SystemDockSettings {
    std::optional<bool> autohide{};
    std::optional<double> delay{}; ///< seconds before it shows when the pointer comes to its edge
    QString dock{};                ///< whose settings these are; empty on a system that has but one dock
    QJsonObject details{};         ///< what this dock's adapter needs besides, to make it exactly as it was
    bool operator==(const SystemDockSettings&) const = default;
};

/// The dock that the system itself shows. It is never removed: it is told to hide, and to wait so long that it never
/// shows by itself. Main thread; the calls for one dock are carried out in their order. Answers come later, and
/// dropping a call's handle only keeps its answer away: what was sent is done.
class SystemDock {
public:
    virtual ~SystemDock() = default;

    /// The dock that runs and can be told to hide; nothing when there is none.
    virtual std::optional<QString> running() const = 0;
    std::function<void()> onRunningChanged = [] {};
    /// A dock's name as it stands in the middle of a sentence: "Plank", "the Xfce panel".
    virtual QString name(const QString& dock) const = 0;
    /// The edges of displays where the running dock would appear.
    virtual QList<Qt::Edge> edges() const = 0;
    std::function<void()> onEdgesChanged = [] {};

    using ReadDone = std::function<void(const std::optional<SystemDockSettings>&)>; ///< nothing: it does not answer
    using WriteDone = std::function<void(bool isWritten)>; ///< true: it is where even a power cut leaves it, which is
                                                           ///< some seconds later with some docks

    virtual Handle read(const QString& dock, ReadDone done) = 0;
    /// Absent settings are given back to their default. The settings that hide it are recognised by `autohide` and
    /// `delay`; whatever else hides the dock goes with them. When others are written, what the user changed since it
    /// was hidden stays as it is.
    virtual Handle write(const SystemDockSettings& settings, WriteDone done) = 0;
    virtual void restart(const QString& dock) = 0; ///< nothing to do where settings are taken up by themselves
};

} // namespace fendrel
