#pragma once

#include <utility>
#include <variant>

namespace fendrel {

/// A value, or the reason why there is none.
template<class Value, class Error>
class [[nodiscard]] Result {
public:
    Result(Value value) : m_state(std::in_place_index<0>, std::move(value)) {}
    static Result failure(Error error) { return Result(std::in_place_index<1>, std::move(error)); }

    explicit operator bool() const { return m_state.index() == 0; }
    const Value& operator*() const& { return std::get<0>(m_state); }
    Value&& operator*() && { return std::get<0>(std::move(m_state)); }
    const Value* operator->() const { return &std::get<0>(m_state); }
    const Error& error() const { return std::get<1>(m_state); }

private:
    Result(std::in_place_index_t<1> index, Error error) : m_state(index, std::move(error)) {}
    std::variant<Value, Error> m_state;
};

} // namespace fendrel
