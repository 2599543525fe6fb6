#include "Widgets/Usage/UsageSummary.h"

#include <numeric>

namespace fendrel::usage {

namespace {

using Quarter = Quarters::value_type;

/// What the clocks there show.
std::chrono::local_time<std::chrono::milliseconds> localTime(WallTime time, const QTimeZone& zone) {
    const std::chrono::seconds offset(zone.offsetFromUtc(toDateTime(time)));
    return std::chrono::local_time<std::chrono::milliseconds>(time.time_since_epoch() + offset);
}

WallTime hourStart(WallTime time, const QTimeZone& zone) {
    const auto local = localTime(time, zone);
    return time - (local - std::chrono::floor<std::chrono::hours>(local));
}

/// Windows follow from one another, so all that is known is gone through.
std::optional<Window> openWindow(const Quarters& quarters, WallTime now, const QTimeZone& zone) {
    std::optional<Window> window;
    for (const auto& [start, models] : quarters) {
        if (start > now)
            break;
        if (!window || start >= window->end())
            window = Window{.start = hourStart(start, zone)};
        for (const auto& [model, sums] : models) {
            window->tokens += sums.tokens;
            window->messages += sums.messages;
        }
    }
    return window && now < window->end() ? window : std::nullopt;
}

void addToDay(Summary& day, const Quarter& quarter, std::chrono::hours hour) {
    for (const auto& [model, sums] : quarter.second) {
        day.tokensToday += sums.tokens;
        day.outputToday += sums.output;
        day.messagesToday += sums.messages;
        day.models[model] += sums.tokens;
        day.cumulativeByHour[hour.count()] += sums.tokens;
    }
}

} // namespace

Summary summarize(const Quarters& quarters, WallTime now, const QTimeZone& zone, bool hasLogs) {
    using Days = std::chrono::days;
    Summary summary{
        .cumulativeByHour = QList<qint64>(24), .window = openWindow(quarters, now, zone), .hasLogs = hasLogs};
    const WallTime today = toWallTime(toDateTime(now).toTimeZone(zone).date().startOfDay(zone));
    for (auto quarter = quarters.lower_bound(std::chrono::floor<QuarterHours>(today));
         quarter != quarters.end() && quarter->first <= now; ++quarter) {
        const auto local = localTime(quarter->first, zone);
        addToDay(summary, *quarter, std::chrono::floor<std::chrono::hours>(local - std::chrono::floor<Days>(local)));
    }
    auto& hours = summary.cumulativeByHour;
    std::partial_sum(hours.cbegin(), hours.cend(), hours.begin());
    return summary;
}

} // namespace fendrel::usage
