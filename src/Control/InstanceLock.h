#pragma once

#include <QString>

namespace fendrel::control {

/// Makes sure that one application at a time works with a user's data. The system lets go of the lock when the process
/// ends, however it ends.
class InstanceLock {
public:
    explicit InstanceLock(const QString& dataFolder); ///< makes the folder when it is missing
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    enum class State { held, heldByAnother, failed };
    State state() const { return m_state; }

private:
    int m_file = -1;
    State m_state = State::failed;
};

} // namespace fendrel::control
