#pragma once

#include <functional>
#include <utility>

namespace fendrel {

/// Owns something that is under way: a timer, a request, a question. Dropping it cancels, and no callback follows.
/// A handle whose work has ended by itself is harmless to keep or drop.
class [[nodiscard]] Handle {
public:
    Handle() = default;
    explicit Handle(std::function<void()> cancel) : m_cancel(std::move(cancel)) {}
    Handle(Handle&& other) noexcept : m_cancel(std::exchange(other.m_cancel, {})) {}
    Handle& operator=(Handle&& other) noexcept {
        if (this != &other) {
            reset();
            m_cancel = std::exchange(other.m_cancel, {});
        }
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { reset(); }

    void reset() {
        // Taken out first: what the cancellation runs may reach this handle again.
        if (auto cancel = std::exchange(m_cancel, {}))
            cancel();
    }

private:
    std::function<void()> m_cancel;
};

} // namespace fendrel
