#pragma once

#include <QString>

#include <chrono>
#include <vector>

namespace fendrel {

/// Says in the log, every 20 times, how long something takes for all but the slowest in twenty.
class TimingLog {
public:
    static constexpr std::size_t kept = 1000;

    explicit TimingLog(QString label) : m_label(std::move(label)) {}
    void record(std::chrono::nanoseconds duration);

private:
    QString m_label;
    std::vector<std::chrono::nanoseconds> m_durations; ///< the last `kept` of them
    std::size_t m_count = 0;
};

} // namespace fendrel
