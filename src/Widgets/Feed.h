#pragma once

#include "Ports/Clock.h"
#include "Ports/HttpClient.h"
#include "Widgets/FetchFailure.h"
#include "Widgets/WidgetFeed.h"

namespace fendrel {

/// When a feed asks its service in the network: at once when its widget shows, then again and again, never while it
/// does not show, and never without a network. What it got, and how it asks, is its own. Main thread.
class Feed : public WidgetFeed {
    Q_OBJECT
public:
    struct Pace {
        std::chrono::seconds interval{};
        std::chrono::seconds tolerance{interval / 10};
        std::chrono::seconds rest{30}; ///< after a fetch nothing is asked again unless forced
    };

    Feed(Clock& clock, HttpClient& http, Pace pace);

    bool isActive() const override { return m_timer.has_value(); }
    void setActive(bool isActive) override;

    /// A forced one doesn't heed what was fetched a moment ago, or is under way: an answer to that no longer counts.
    /// The pause that a service asks for is heeded by both.
    void refresh(bool force) override;
    /// Asks with another key, for which no pause was asked, or learns that there is none.
    void refreshForNewKey();

    std::chrono::seconds interval() const { return m_pace.interval; }
    bool isLoading() const override { return m_isLoading; }
    QString error() const override { return m_error; }
    std::optional<WallTime> updatedAt() const override { return m_updatedAt; }

protected:
    Clock& clock() const { return m_clock; }
    HttpClient& http() const { return m_http; }

    /// Asks, and tells by one of the following how that goes. What it returns is dropped to take the question back.
    virtual Handle fetch() = 0;
    virtual QString text(const FetchFailure& failure) const = 0; ///< as the card says it
    virtual bool isFresh() const;                                ///< nothing new is to be expected yet

    bool begin();           ///< before the first request; false: it ends here, unseen or without a network
    void hold(Handle next); ///< the next request of the same fetch
    void succeed();
    void fail(const FetchFailure& failure);
    void clear(); ///< there is nothing to ask

private:
    void end();

    Clock& m_clock;
    HttpClient& m_http;
    Pace m_pace;
    bool m_isBusy = false;
    bool m_isLoading = false;
    bool m_isCutOff = false; ///< the last fetch failed for want of a network, or is about to
    QString m_error;
    std::optional<WallTime> m_updatedAt;
    std::optional<ContinuousTime> m_lastFetch;
    std::optional<ContinuousTime> m_notBefore; ///< the service asked for a pause
    Handle m_request;
    std::optional<Handle> m_timer;
    Handle m_online;
};

} // namespace fendrel
