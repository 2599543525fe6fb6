#pragma once

#include "Base/Handle.h"
#include "Platform/Linux/ModelServer/Curl.h"
#include "Ports/Clock.h"

#include <QSocketNotifier>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace fendrel {

/// Runs transfers of libcurl in the event loop, without a thread. Main thread; not to be destroyed by a callback.
class CurlLoop {
public:
    CurlLoop(const Curl& curl, Clock& clock);
    ~CurlLoop();
    CurlLoop(const CurlLoop&) = delete;
    CurlLoop& operator=(const CurlLoop&) = delete;

    /// Begins a transfer at the next turn. `ended` comes once, when the loop has let go of it.
    void add(CURL* transfer, std::function<void(CURLcode)> ended);
    void remove(CURL* transfer); ///< closes the connection of one that is under way; no callback follows

private:
    struct Watch {
        std::unique_ptr<QSocketNotifier> read, write;
    };

    static int watch(CURL*, curl_socket_t socket, int what, void* self, void*);
    static int setTimer(CURLM*, long milliseconds, void* self);
    void follow(std::unique_ptr<QSocketNotifier>& notifier, curl_socket_t socket, QSocketNotifier::Type type,
                bool isWanted);
    void act(curl_socket_t socket, int events);

    const Curl& m_curl;
    Clock& m_clock;
    std::map<curl_socket_t, Watch> m_watched;
    std::vector<Watch> m_retired; // one of these may be what is calling
    Handle m_timer;
    std::map<CURL*, std::function<void(CURLcode)>> m_running;
    std::unique_ptr<CURLM, decltype(Curl::multiCleanup)> m_multi;
};

} // namespace fendrel
