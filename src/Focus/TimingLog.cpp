#include "Focus/TimingLog.h"

#include "Base/Log.h"

#include <algorithm>

namespace fendrel {

void TimingLog::record(std::chrono::nanoseconds duration) {
    if (m_durations.size() < kept)
        m_durations.push_back(duration);
    else
        m_durations[m_count % kept] = duration;
    if (++m_count % 20 != 0)
        return;
    auto sorted = m_durations;
    const auto index = static_cast<std::ptrdiff_t>(0.95 * static_cast<double>(sorted.size() - 1));
    std::ranges::nth_element(sorted, sorted.begin() + index);
    const std::chrono::duration<double, std::milli> p95 = sorted[static_cast<std::size_t>(index)];
    qCInfo(logFocus).noquote() << m_label << "p95" << QString::number(p95.count(), 'f', 3) << "ms over"
                               << sorted.size();
}

} // namespace fendrel
