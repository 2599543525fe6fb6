#pragma once

#include "Base/BridgeProtocol.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace fendrel::relay {

/// What precedes a message between a browser and us: its length in bytes, in the processor's byte order.
using NativeLength = std::uint32_t;

/// Cuts the stream from a browser into messages, whatever pieces it arrives in.
class NativeReader {
public:
    /// Hands every whole message to `take`; the view lives only during the call. Browsers may send messages of up to 4
    /// GB: one longer than bridge::longestMessage is passed over without keeping any of it.
    template<class Take>
    void feed(std::string_view bytes, Take&& take) {
        while (!bytes.empty()) {
            if (m_toSkip > 0)
                m_toSkip -= static_cast<NativeLength>(cut(bytes, m_toSkip).size());
            else if (m_lengthSize < m_length.size())
                readLength(bytes);
            else
                readText(bytes, take);
        }
    }

    /// Whether the stream can end here without a message being cut off.
    bool isBetweenMessages() const { return m_toSkip == 0 && m_lengthSize == 0; }

private:
    static std::string_view cut(std::string_view& bytes, std::size_t most) {
        const std::string_view piece = bytes.substr(0, most);
        bytes.remove_prefix(piece.size());
        return piece;
    }

    NativeLength length() const {
        NativeLength value = 0;
        std::memcpy(&value, m_length.data(), sizeof value);
        return value;
    }

    void readLength(std::string_view& bytes) {
        const std::string_view piece = cut(bytes, m_length.size() - m_lengthSize);
        std::copy(piece.begin(), piece.end(), m_length.begin() + m_lengthSize);
        m_lengthSize += piece.size();
        if (m_lengthSize == m_length.size() && (length() == 0 || length() > bridge::longestMessage)) {
            m_toSkip = length();
            m_lengthSize = 0;
        }
    }

    template<class Take>
    void readText(std::string_view& bytes, Take& take) {
        const std::string_view piece = cut(bytes, length() - m_waiting.size());
        const bool isWhole = m_waiting.empty() && piece.size() == length();
        if (!isWhole) {
            m_waiting.append(piece);
            if (m_waiting.size() < length())
                return;
        }
        take(isWhole ? piece : std::string_view(m_waiting));
        m_waiting.clear();
        m_lengthSize = 0;
    }

    std::array<char, sizeof(NativeLength)> m_length{};
    std::size_t m_lengthSize = 0; // of it, bytes that have come
    std::string m_waiting;
    NativeLength m_toSkip = 0;
};

/// Appends the text as a message to a browser. It is at most bridge::longestMessage bytes.
inline void appendNativeMessage(std::string& stream, std::string_view text) {
    const auto length = static_cast<NativeLength>(text.size());
    std::array<char, sizeof length> bytes{};
    std::memcpy(bytes.data(), &length, bytes.size());
    stream.append(bytes.data(), bytes.size()).append(text);
}

} // namespace fendrel::relay
