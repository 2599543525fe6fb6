#pragma once

#include "Base/WallTime.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

namespace fendrel::usage {

/// What one line of a log says of a reply.
struct Reply {
    std::string_view request{}; ///< which all lines of a reply share; empty where the line names none
    std::string_view model{};
    WallTime time{};
    qint64 tokens{}; ///< all kinds together, at most four billion
    qint64 output{};
};

/// ISO 8601 as the logs have it: with or without a fraction of a second, which is cut to milliseconds; with "Z" or an
/// offset.
std::optional<WallTime> readTime(std::string_view text);

/// Reads lines of the coding agent's logs: objects with "type", "timestamp", "requestId" and "message", and in that
/// "id", "model" and "usage". One thread.
class LineParser {
public:
    static constexpr std::size_t padding = 64; ///< bytes behind a line that must be readable, whatever they are

    LineParser();
    ~LineParser();

    /// Nothing for lines that do not count: not a reply, made up by the agent itself, not JSON. Counters that cannot be
    /// true count as nothing, too large ones as a billion. The views are valid until the next line is read.
    std::optional<Reply> parse(std::string_view line);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace fendrel::usage
