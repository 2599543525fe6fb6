#include "Platform/Linux/ModelServer/CurlLoop.h"

#include <chrono>
#include <utility>

namespace fendrel {

CurlLoop::CurlLoop(const Curl& curl, Clock& clock)
    : m_curl(curl), m_clock(clock), m_multi(curl.multiInit(), curl.multiCleanup) {
    auto* const multi = m_multi.get();
    m_curl.multiSetopt(multi, CURLMOPT_SOCKETFUNCTION, &CurlLoop::watch);
    m_curl.multiSetopt(multi, CURLMOPT_SOCKETDATA, this);
    m_curl.multiSetopt(multi, CURLMOPT_TIMERFUNCTION, &CurlLoop::setTimer);
    m_curl.multiSetopt(multi, CURLMOPT_TIMERDATA, this);
    m_curl.multiSetopt(multi, CURLMOPT_MAXCONNECTS, 4L);
}

CurlLoop::~CurlLoop() {
    while (!m_running.empty())
        remove(m_running.begin()->first);
}

void CurlLoop::add(CURL* transfer, std::function<void(CURLcode)> ended) {
    m_running[transfer] = std::move(ended);
    m_curl.multiAddHandle(m_multi.get(), transfer);
}

void CurlLoop::remove(CURL* transfer) {
    if (m_running.erase(transfer) > 0)
        m_curl.multiRemoveHandle(m_multi.get(), transfer);
}

int CurlLoop::watch(CURL*, curl_socket_t socket, int what, void* self, void*) {
    auto& loop = *static_cast<CurlLoop*>(self);
    if (what == CURL_POLL_REMOVE) {
        // The descriptor is closed next, and its number may come back as another connection's.
        if (auto removed = loop.m_watched.extract(socket)) {
            loop.follow(removed.mapped().read, socket, QSocketNotifier::Read, false);
            loop.follow(removed.mapped().write, socket, QSocketNotifier::Write, false);
            loop.m_retired.push_back(std::move(removed.mapped()));
        }
        return 0;
    }
    Watch& watched = loop.m_watched[socket];
    loop.follow(watched.read, socket, QSocketNotifier::Read, (what & CURL_POLL_IN) != 0);
    loop.follow(watched.write, socket, QSocketNotifier::Write, (what & CURL_POLL_OUT) != 0);
    return 0;
}

void CurlLoop::follow(std::unique_ptr<QSocketNotifier>& notifier, curl_socket_t socket, QSocketNotifier::Type type,
                      bool isWanted) {
    if (!notifier && isWanted) {
        notifier = std::make_unique<QSocketNotifier>(socket, type);
        const int events = type == QSocketNotifier::Read ? CURL_CSELECT_IN : CURL_CSELECT_OUT;
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                         [this, socket, events] { act(socket, events); });
    } else if (notifier) {
        notifier->setEnabled(isWanted);
    }
}

int CurlLoop::setTimer(CURLM*, long milliseconds, void* self) {
    auto& loop = *static_cast<CurlLoop*>(self);
    loop.m_timer.reset();
    if (milliseconds >= 0) {
        loop.m_timer =
            loop.m_clock.after(std::chrono::milliseconds(milliseconds), [&loop] { loop.act(CURL_SOCKET_TIMEOUT, 0); });
    }
    return 0;
}

void CurlLoop::act(curl_socket_t socket, int events) {
    m_retired.clear();
    int running = 0;
    m_curl.multiSocketAction(m_multi.get(), socket, events, &running);
    int left = 0;
    while (const CURLMsg* const message = m_curl.multiInfoRead(m_multi.get(), &left)) {
        CURL* const transfer = message->easy_handle;
        const CURLcode result = message->data.result;
        const auto ended = m_running.extract(transfer);
        m_curl.multiRemoveHandle(m_multi.get(), transfer); // and with it the message
        if (ended)
            ended.mapped()(result);
    }
}

} // namespace fendrel
