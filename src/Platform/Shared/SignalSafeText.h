#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fendrel {

/// Text that a signal handler may put together: no allocation, no locale, no locks. What does not fit is cut
/// off.
template<std::size_t capacity>
class SignalSafeText {
public:
    SignalSafeText& operator<<(std::string_view text) {
        for (std::size_t index = 0; index < text.size() && m_size < capacity; ++index)
            m_text[m_size++] = text[index];
        m_text[m_size] = '\0';
        return *this;
    }

    SignalSafeText& number(std::uint64_t value, unsigned base = 10, std::size_t width = 1) {
        char digits[64];
        std::size_t count = 0;
        do {
            digits[count++] = "0123456789abcdef"[value % base];
            value /= base;
        } while (value > 0);
        while (count < width)
            digits[count++] = '0';
        while (count > 0)
            *this << std::string_view(&digits[--count], 1);
        return *this;
    }

    /// "2026-01-05<between>09<colon>00<colon>00"
    SignalSafeText& time(std::chrono::sys_seconds time, std::string_view between, std::string_view colon) {
        const auto midnight = std::chrono::floor<std::chrono::days>(time);
        const std::chrono::year_month_day date(midnight);
        const std::chrono::hh_mm_ss clock(time - midnight);
        number(static_cast<unsigned>(static_cast<int>(date.year())), 10, 4) << "-";
        number(static_cast<unsigned>(date.month()), 10, 2) << "-";
        number(static_cast<unsigned>(date.day()), 10, 2) << between;
        number(static_cast<std::uint64_t>(clock.hours().count()), 10, 2) << colon;
        number(static_cast<std::uint64_t>(clock.minutes().count()), 10, 2) << colon;
        return number(static_cast<std::uint64_t>(clock.seconds().count()), 10, 2);
    }

    std::string_view view() const { return {m_text, m_size}; }
    const char* zeroTerminated() const { return m_text; }

private:
    char m_text[capacity + 1]{};
    std::size_t m_size = 0;
};

} // namespace fendrel
