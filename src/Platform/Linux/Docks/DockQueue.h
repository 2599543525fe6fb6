#pragma once

#include "Platform/Linux/Docks/DockDriver.h"

#include <memory>

namespace fendrel {

/// Carries out what is asked of one dock, a call after the other: a write reads first what it changes. Answers follow
/// later. Main thread.
class DockQueue {
public:
    explicit DockQueue(std::unique_ptr<DockDriver> driver) : m_driver(std::move(driver)) {}

    DockDriver& driver() const { return *m_driver; }
    Handle read(SystemDock::ReadDone done);
    Handle write(const SystemDockSettings& settings, SystemDock::WriteDone done);

private:
    struct Writing;
    using Job = std::function<void()>; ///< calls proceed() at its end

    void queue(Job job);
    void proceed();
    void take(const DockChanges& changes, bool isChanged, const std::shared_ptr<Writing>& writing);

    std::unique_ptr<DockDriver> m_driver;
    QList<Job> m_jobs;
    bool m_isBusy = false;
    Handle m_next;
    Handle m_reading;
    Handle m_changing;
};

} // namespace fendrel
