#pragma once

#include "Base/Handle.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace fendrel {

/// Requests of a fake that wait until the test answers them.
template<class Answer>
class OpenRequests {
public:
    using Done = std::function<void(const Answer&)>;

    Handle add(Done done) {
        const auto id = m_state->nextId++;
        m_state->waiting.emplace(id, std::move(done));
        return Handle([state = std::weak_ptr(m_state), id] {
            if (const auto alive = state.lock())
                alive->cancelled += static_cast<int>(alive->waiting.erase(id));
        });
    }

    /// Returns false when none waits.
    bool answerOldest(const Answer& answer) {
        if (m_state->waiting.empty())
            return false;
        const auto done = std::move(m_state->waiting.begin()->second);
        m_state->waiting.erase(m_state->waiting.begin());
        done(answer);
        return true;
    }

    int waiting() const { return static_cast<int>(m_state->waiting.size()); }
    int cancelled() const { return m_state->cancelled; } ///< dropped before they were answered

private:
    struct State {
        std::map<std::uint64_t, Done> waiting;
        std::uint64_t nextId = 0;
        int cancelled = 0;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace fendrel
