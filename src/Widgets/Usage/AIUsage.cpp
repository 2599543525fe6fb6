#include "Widgets/Usage/AIUsage.h"

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
constexpr std::chrono::seconds interval = 60s;
constexpr std::chrono::seconds tolerance = 10s;
} // namespace

AIUsage::AIUsage(Clock& clock, QStringList roots) : m_clock(clock), m_scanner(std::move(roots)) {}

AIUsage::~AIUsage() {
    m_stop.request_stop();
}

void AIUsage::setActive(bool isActive) {
    if (isActive == this->isActive())
        return;
    m_timer.reset();
    if (!isActive)
        return;
    m_timer = m_clock.every(interval, tolerance, [this] { refresh(false); });
    refresh(false);
}

void AIUsage::refresh(bool force) {
    // What is being looked at is as good as new, unless the user wants to be sure; the disk is never asked three times.
    if (m_awaited > (force ? 1 : 0))
        return;
    ++m_awaited;
    if (!m_worker)
        m_worker = std::make_unique<Worker>(u"org.fendrel.Fendrel.aiusage"_s);
    m_worker->post({}, [this, now = m_clock.now(), zone = QTimeZone::systemTimeZone(), stop = m_stop.get_token()] {
        QMetaObject::invokeMethod(
            this, [this, now, summary = m_scanner.scan(now, zone, stop)] { take(summary, now); }, Qt::QueuedConnection);
    });
}

void AIUsage::take(const usage::Summary& summary, WallTime time) {
    --m_awaited;
    m_updatedAt = time;
    if (m_summary == summary)
        return;
    m_summary = summary;
    Q_EMIT changed();
}

} // namespace fendrel
