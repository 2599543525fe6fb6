#pragma once

#include "Base/WallTime.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QTimeZone>

#include <map>
#include <optional>

namespace fendrel::usage {

/// One reply of the coding agent.
struct Entry {
    WallTime time{};
    qint64 tokens{}; ///< all kinds together
    qint64 output{}; ///< of them, those that it wrote
    QString model{};
    bool operator==(const Entry&) const = default;
};

/// Of several replies.
struct Sums {
    qint64 tokens{};
    qint64 output{};
    int messages{};
};

/// Days and hours begin with a quarter of an hour in every time zone, so what is known of those is enough for all of
/// them.
using QuarterHours = std::chrono::duration<qint64, std::ratio<15 * 60>>;
using Quarters = std::map<std::chrono::sys_time<QuarterHours>, std::map<QString, Sums>>; ///< by model

/// Five hours, counted from the beginning of the hour of their first reply.
struct Window {
    static constexpr std::chrono::hours length{5};
    WallTime start{};
    qint64 tokens{};
    int messages{};
    WallTime end() const { return start + length; }
    bool operator==(const Window&) const = default;
};

struct Summary {
    qint64 tokensToday{};
    qint64 outputToday{};
    int messagesToday{};
    QList<qint64> cumulativeByHour{}; ///< all of the day up to the end of each of its 24 hours
    QMap<QString, qint64> models{};   ///< tokens of today
    std::optional<Window> window{};   ///< the one that is open now
    bool hasLogs{};                   ///< there is something to read at all
    bool operator==(const Summary&) const = default;
};

/// Of the day and the hours there. What is said to happen later than now is left out.
Summary summarize(const Quarters& quarters, WallTime now, const QTimeZone& zone, bool hasLogs);

} // namespace fendrel::usage
