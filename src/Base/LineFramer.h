#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace fendrel {

/// Cuts a byte stream into lines that end with a newline, whatever pieces it arrives in.
class LineFramer {
public:
    /// Bytes that may wait without a newline before the peer counts as broken.
    static constexpr std::size_t limit = 1'048'576;

    /// Hands every whole line, without its newline, to `take`; the view lives only during the call.
    /// Returns false once more than `limit` bytes wait without a newline: the peer is to be cut off.
    template<class Take>
    [[nodiscard]] bool feed(std::string_view bytes, Take&& take) {
        const std::size_t searched = m_waiting.size();
        m_waiting.append(bytes);
        std::size_t start = 0;
        for (std::size_t end = m_waiting.find('\n', searched); end != std::string::npos;
             end = m_waiting.find('\n', start)) {
            take(std::string_view(m_waiting).substr(start, end - start));
            start = end + 1;
        }
        m_waiting.erase(0, start);
        return m_waiting.size() <= limit;
    }

private:
    std::string m_waiting;
};

} // namespace fendrel
