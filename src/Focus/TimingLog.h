#pragma once

#include <QString>

#include <chrono>
#include <vector>

namespace fendrel {

/// Says in the log, every 20 times, how long something takes for all but the slowest in twenty.
class TimingLog {
public:
    explicit TimingLog(QString label) : m_label(std::move(label)) {}
    void record(std::chrono::nanoseconds duration);

private:
    QString m_label;
    std::vector<std::chrono::nanoseconds> m_durations;
};

} // namespace fendrel
