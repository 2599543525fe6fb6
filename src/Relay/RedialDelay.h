#pragma once

#include <algorithm>
#include <chrono>

namespace fendrel::relay {

/// How long to wait before the application is dialled again: longer after each time that it was in vain, yet never so
/// long that its user would notice after a restart.
class RedialDelay {
public:
    using Duration = std::chrono::milliseconds;
    static constexpr Duration shortest{50};
    static constexpr Duration longest{1000};

    Duration next() {
        const Duration delay = m_next;
        m_next = std::min(m_next * 2, longest);
        return delay;
    }
    void reset() { m_next = shortest; }

private:
    Duration m_next = shortest;
};

} // namespace fendrel::relay
