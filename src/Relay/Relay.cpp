#include "Relay/Relay.h"

#include "Relay/ApplicationSocket.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace fendrel::relay {

namespace {

constexpr short ended = POLLHUP | POLLERR | POLLNVAL;

bool isWorthAnotherTry(int error) {
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

short onlyIf(bool condition, short event) {
    return condition ? event : short{0};
}

} // namespace

Relay::Relay(FileDescriptor toBrowser, std::optional<sockaddr_un> application, long browser)
    : m_toBrowser(std::move(toBrowser)), m_address(application), m_conversation(browser) {
    if (!m_address)
        m_conversation.giveUp();
}

int Relay::run() {
    for (;;) {
        dialIfDue();
        // At once, not when the next wait says that there is room: nearly always there is.
        sendToApplication();
        if (!sendToBrowser())
            return 0;
        std::array<pollfd, 3> watched{{
            {STDIN_FILENO, onlyIf(m_conversation.wantsBrowser(), POLLIN), 0},
            {m_toBrowser.get(), onlyIf(!m_conversation.toBrowser().empty(), POLLOUT), 0},
            {m_application.get(), 0, 0},
        }};
        watched[2].events = static_cast<short>(onlyIf(m_conversation.wantsApplication(), POLLIN) |
                                               onlyIf(!m_conversation.toApplication().empty(), POLLOUT));
        if (poll(watched.data(), watched.size(), timeout()) < 0) {
            if (errno == EINTR)
                continue;
            std::fprintf(stderr, "fendrel-bridge: cannot wait: %s\n", std::strerror(errno));
            return 1;
        }
        if (watched[1].revents & ended)
            return 0;
        switch (serveBrowser(watched[0].revents)) {
        case Browser::there:
            break;
        case Browser::gone:
            return 0;
        case Browser::broken:
            std::fputs("fendrel-bridge: the browser ended in the middle of a message\n", stderr);
            return 1;
        }
        if (m_application)
            serveApplication(watched[2].revents);
    }
}

void Relay::dialIfDue() {
    const auto due = m_conversation.dialAt();
    if (!due)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (now < *due)
        return;
    m_application = dial(*m_address);
    if (m_application)
        m_conversation.connected();
    else
        m_conversation.lost(now);
}

int Relay::timeout() const {
    const auto due = m_conversation.dialAt();
    if (!due)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*due - std::chrono::steady_clock::now());
    return static_cast<int>(std::max(left, std::chrono::milliseconds(0)).count());
}

Relay::Browser Relay::serveBrowser(short events) {
    if (!(events & (POLLIN | ended)))
        return Browser::there;
    // A pipe that has ended and was read to its end is not readable any more.
    const ssize_t count = events & POLLIN ? read(STDIN_FILENO, m_piece.get(), pieceSize) : 0;
    if (count > 0)
        m_conversation.fromBrowser({m_piece.get(), static_cast<std::size_t>(count)});
    else if (count == 0 || !isWorthAnotherTry(errno))
        return m_conversation.isBetweenMessages() ? Browser::gone : Browser::broken;
    return Browser::there;
}

void Relay::serveApplication(short events) {
    if (!(events & POLLIN)) {
        // What is left to read goes with an application that ends while the browser takes nothing.
        if (events & ended)
            hangUp();
        return;
    }
    const ssize_t count = read(m_application.get(), m_piece.get(), pieceSize);
    const bool isGood = count > 0 ? m_conversation.fromApplication({m_piece.get(), static_cast<std::size_t>(count)})
                                  : count < 0 && isWorthAnotherTry(errno);
    if (!isGood)
        hangUp();
}

bool Relay::sendToBrowser() {
    const std::string_view bytes = m_conversation.toBrowser();
    if (bytes.empty())
        return true;
    const ssize_t count = write(m_toBrowser.get(), bytes.data(), bytes.size());
    if (count < 0)
        return isWorthAnotherTry(errno);
    m_conversation.takenByBrowser(static_cast<std::size_t>(count));
    return true;
}

void Relay::sendToApplication() {
    const std::string_view bytes = m_conversation.toApplication();
    if (bytes.empty())
        return;
    const ssize_t count = write(m_application.get(), bytes.data(), bytes.size());
    if (count >= 0)
        m_conversation.takenByApplication(static_cast<std::size_t>(count));
    else if (!isWorthAnotherTry(errno))
        hangUp();
}

void Relay::hangUp() {
    m_application = {};
    m_conversation.lost(std::chrono::steady_clock::now());
}

} // namespace fendrel::relay
