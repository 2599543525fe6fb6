#pragma once

#include "Base/Handle.h"

#include <cstdint>
#include <map>
#include <memory>
#include <utility>

namespace fendrel {

/// Those who asked to be told about something, in the order in which they asked. A listener may drop its own or
/// another handle while it is told, add listeners, or destroy this list. Handles may outlive the list.
template<class Listener>
class Listeners {
public:
    Handle add(Listener listener) {
        const auto id = m_state->nextId++;
        m_state->entries.emplace(id, std::make_shared<Listener>(std::move(listener)));
        return Handle([state = std::weak_ptr(m_state), id] {
            if (const auto alive = state.lock())
                alive->entries.erase(id);
        });
    }

    /// Calls `tell` with every listener that is here now and still is when its turn comes.
    template<class Tell>
    void forEach(const Tell& tell) const {
        const std::weak_ptr<State> state = m_state;
        const auto end = m_state->nextId;
        for (std::uint64_t id = 0;;) {
            std::shared_ptr<Listener> listener; // keeps it alive while it runs, whatever it drops
            {
                const auto alive = state.lock();
                if (!alive)
                    return;
                const auto next = alive->entries.lower_bound(id);
                if (next == alive->entries.end() || next->first >= end)
                    return;
                id = next->first + 1;
                listener = next->second;
            }
            tell(*listener);
        }
    }

private:
    struct State {
        std::map<std::uint64_t, std::shared_ptr<Listener>> entries;
        std::uint64_t nextId = 0;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace fendrel
