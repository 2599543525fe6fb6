#pragma once

#include <QByteArray>

#include <functional>
#include <stop_token>
#include <string_view>

namespace fendrel::usage {

/// How far a log has been read.
struct LogPosition {
    qint64 offset{};           ///< of the first byte that is not done with: a line's first, unless
    bool isInLongLine = false; ///< the rest of a line is to be passed over that was too long
};

/// Reads lines that were appended to files, through one piece of memory. One thread.
class LogTail {
public:
    static constexpr qsizetype chunk = 256 * 1024;             ///< read at once
    static constexpr qsizetype longestLine = 16 * 1024 * 1024; ///< what is longer is passed over

    /// `padding`: how many bytes must be readable behind a line.
    explicit LogTail(qsizetype padding);

    /// Whether what was read up to there can be what is there still: a file that was rewritten rarely has a line's end
    /// at the same place, and none where it is shorter.
    static bool continues(int descriptor, const LogPosition& position);

    /// Hands over each line that is there whole, without its end, and its offset. The position moves past them. False
    /// when not all could be read up to `size`, or when it was to stop: the position is then that of the rest. What is
    /// behind the last line's end may be half a line: it is read again the next time.
    bool read(int descriptor, qint64 size, LogPosition& position, const std::stop_token& stop,
              const std::function<void(std::string_view line, qint64 offset)>& take);

private:
    QByteArray m_buffer; ///< grows for a line that doesn't fit, and stays so
    qsizetype m_padding;
};

} // namespace fendrel::usage
