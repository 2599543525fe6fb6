#include "Widgets/Feed.h"

#include <utility>

namespace fendrel {

Feed::Feed(Clock& clock, HttpClient& http, Pace pace)
    : m_clock(clock), m_http(http), m_pace(pace), m_online(http.onOnlineChanged([this] {
          if (!m_http.isOnline())
              m_isCutOff = m_isCutOff || m_isLoading; // what was asked will not be answered any more
          else if (isActive() && m_isCutOff)
              refresh(true);
      })) {}

void Feed::setActive(bool isActive) {
    if (isActive == this->isActive())
        return;
    if (!isActive) {
        m_timer.reset();
        return;
    }
    m_timer = m_clock.every(m_pace.interval, m_pace.tolerance, [this] { refresh(false); });
    refresh(false);
}

void Feed::refresh(bool force) {
    const bool isPaused = m_notBefore && m_clock.continuousNow() < *m_notBefore;
    if (isPaused || (!force && (m_isBusy || isFresh())))
        return;
    m_isBusy = true;
    m_request.reset();
    m_request = fetch();
}

void Feed::refreshForNewKey() {
    m_notBefore.reset();
    refresh(true);
}

bool Feed::isFresh() const {
    return m_lastFetch && m_clock.continuousNow() - *m_lastFetch <= m_pace.rest;
}

bool Feed::begin() {
    if (!isActive()) { // a key came, and nobody sees what it brings
        end();
        m_lastFetch.reset();
        return false;
    }
    if (!m_http.isOnline()) {
        fail(FetchFailure::unreachable());
        return false;
    }
    m_lastFetch = m_clock.continuousNow();
    m_isLoading = true;
    m_isCutOff = false;
    Q_EMIT changed();
    return true;
}

void Feed::hold(Handle next) {
    m_request = std::move(next);
}

void Feed::end() {
    m_isBusy = false;
    m_isLoading = false;
    m_isCutOff = false;
    m_error.clear();
}

void Feed::succeed() {
    end();
    m_updatedAt = m_clock.now();
    Q_EMIT changed();
}

void Feed::fail(const FetchFailure& failure) {
    end();
    m_error = text(failure);
    m_isCutOff = failure.kind == FetchFailure::Kind::unreachable;
    if (failure.retryAfter)
        m_notBefore = m_clock.continuousNow() + *failure.retryAfter;
    Q_EMIT changed();
}

void Feed::clear() {
    end();
    m_updatedAt.reset();
    Q_EMIT changed();
}

} // namespace fendrel
