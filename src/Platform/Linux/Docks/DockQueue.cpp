#include "Platform/Linux/Docks/DockQueue.h"

#include "Base/Log.h"
#include "Platform/Shared/AtNextTurn.h"

#include <utility>

namespace fendrel {

/// A write that somebody may wait for.
struct DockQueue::Writing {
    SystemDock::WriteDone done{}; ///< empty when it was told, or nobody wants to know
    Handle storing{};
};

Handle DockQueue::read(SystemDock::ReadDone done) {
    const auto kept = std::make_shared<SystemDock::ReadDone>(std::move(done));
    queue([this, kept] {
        m_reading = m_driver->read({}, [this, kept](const std::optional<QList<DockSetting>>& now) {
            if (const auto tell = std::exchange(*kept, {}))
                tell(now ? std::optional(settingsOf(m_driver->dock(), *now)) : std::nullopt);
            proceed();
        });
    });
    return Handle([kept] { *kept = {}; });
}

Handle DockQueue::write(const SystemDockSettings& settings, SystemDock::WriteDone done) {
    const auto writing = std::make_shared<Writing>(Writing{.done = std::move(done)});
    queue([this, settings, writing] {
        m_reading = m_driver->read(settings.details, [=, this](const std::optional<QList<DockSetting>>& now) {
            if (!now)
                return take({}, false, writing);
            const DockChanges changes = changesTo(settings, *now);
            m_changing = m_driver->change(changes, [=, this](bool isChanged) { take(changes, isChanged, writing); });
        });
    });
    return Handle([writing] { *writing = {}; });
}

void DockQueue::take(const DockChanges& changes, bool isChanged, const std::shared_ptr<Writing>& writing) {
    const auto tell = [writing](bool isWritten) {
        if (const auto done = std::exchange(writing->done, {}))
            done(isWritten);
    };
    if (!isChanged) {
        qCWarning(logDesktop) << "Couldn't change the settings of the dock" << m_driver->dock();
        tell(false);
    } else if (writing->done) {
        writing->storing = m_driver->whenStored(changes, [tell] { tell(true); });
    }
    proceed(); // the next one, which may be another wish of the user's, does not wait for the disk
}

void DockQueue::queue(Job job) {
    m_jobs.append(std::move(job));
    if (!std::exchange(m_isBusy, true))
        proceed();
}

void DockQueue::proceed() {
    // At the next turn: answers never come from inside the call, and what runs now may be what the handle holds.
    m_next = atNextTurn([this] {
        if (m_jobs.isEmpty())
            m_isBusy = false;
        else
            m_jobs.takeFirst()();
    });
}

} // namespace fendrel
