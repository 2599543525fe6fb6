#include "Widgets/Usage/LogTail.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace fendrel::usage {

namespace {

/// As pread, but an interruption is none.
qsizetype readAt(int descriptor, char* to, qsizetype size, qint64 offset) {
    for (;;) {
        const auto count = ::pread(descriptor, to, static_cast<std::size_t>(size), offset);
        if (count >= 0 || errno != EINTR)
            return count;
    }
}

/// Null where there is none.
const char* findLineEnd(const char* begin, const char* end) {
    return static_cast<const char*>(std::memchr(begin, '\n', static_cast<std::size_t>(end - begin)));
}

} // namespace

LogTail::LogTail(qsizetype padding) : m_buffer(chunk + padding, '\0'), m_padding(padding) {}

bool LogTail::continues(int descriptor, const LogPosition& position) {
    char last = '\n';
    if (position.offset > 0 && readAt(descriptor, &last, 1, position.offset - 1) != 1)
        return false;
    return last == '\n' || position.isInLongLine;
}

bool LogTail::read(int descriptor, qint64 size, LogPosition& position, const std::stop_token& stop,
                   const std::function<void(std::string_view line, qint64 offset)>& take) {
    qsizetype held = 0; // the beginning of a line whose end is yet to be read
    const auto drop = [&](qsizetype count) {
        std::memmove(m_buffer.data(), m_buffer.constData() + count, static_cast<std::size_t>(held - count));
        held -= count;
        position.offset += count;
    };
    while (position.offset + held < size) {
        const qsizetype room = m_buffer.size() - m_padding - held;
        const qsizetype wanted = std::min({room, chunk, static_cast<qsizetype>(size - position.offset - held)});
        const qsizetype count =
            stop.stop_requested() ? 0 : readAt(descriptor, m_buffer.data() + held, wanted, position.offset + held);
        if (count <= 0)
            return false;
        const char* begin = m_buffer.constData();
        const char* const added = begin + held;
        held += count;
        const char* const end = begin + held;
        for (const char* lineEnd = findLineEnd(added, end); lineEnd; lineEnd = findLineEnd(begin, end)) {
            if (!std::exchange(position.isInLongLine, false))
                take({begin, lineEnd}, position.offset + (begin - m_buffer.constData()));
            begin = lineEnd + 1;
        }
        drop(begin - m_buffer.constData());
        if (!position.isInLongLine && held == m_buffer.size() - m_padding) {
            if (held < longestLine)
                m_buffer.resize(std::min(2 * held, longestLine) + m_padding);
            else
                position.isInLongLine = true;
        }
        if (position.isInLongLine)
            drop(held);
    }
    return true;
}

} // namespace fendrel::usage
