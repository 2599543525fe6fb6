#pragma once

#include "Base/Worker.h"
#include "Ports/Clock.h"
#include "Widgets/Usage/UsageScanner.h"
#include "Widgets/WidgetFeed.h"

#include <QStringList>

#include <memory>
#include <stop_token>

namespace fendrel {

/// What a coding agent's logs on this machine say of its use today. They are read on a thread of its own. Main thread.
class AIUsage final : public WidgetFeed {
    Q_OBJECT
public:
    AIUsage(Clock& clock, QStringList roots);
    ~AIUsage() override; ///< waits for what is being read, not for the rest

    bool isActive() const override { return m_timer.has_value(); }
    void setActive(bool isActive) override;
    void refresh(bool force) override;
    bool isLoading() const override { return m_awaited > 0; }
    std::optional<WallTime> updatedAt() const override { return m_updatedAt; }

    const std::optional<usage::Summary>& summary() const { return m_summary; } ///< nothing before the first look

private:
    void take(const usage::Summary& summary, WallTime time);

    Clock& m_clock;
    UsageScanner m_scanner; ///< the worker's alone
    std::optional<usage::Summary> m_summary;
    std::optional<WallTime> m_updatedAt;
    std::optional<Handle> m_timer;
    int m_awaited = 0; ///< looks that have not been answered
    std::stop_source m_stop;
    std::unique_ptr<Worker> m_worker; ///< the last: nothing it posts arrives once it has ended
};

} // namespace fendrel
