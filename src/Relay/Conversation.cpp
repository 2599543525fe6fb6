#include "Relay/Conversation.h"

#include "Relay/Message.h"

#include <algorithm>

namespace fendrel::relay {

namespace {

std::string object(std::string_view type, std::string_view more = {}) {
    return std::string(R"({"type":")").append(type).append("\"").append(more).append("}");
}

} // namespace

Conversation::Conversation(long browser)
    : m_hello(object(bridge::typeHello, R"(,"pids":[)" + std::to_string(browser) + "]")) {}

void Conversation::connected() {
    m_dialAt.reset();
    m_isConnected = true;
    m_isAnswered = false;
    m_toApplication.append(m_hello).push_back('\n');
    sendTab();
}

void Conversation::lost(Moment now) {
    giveUp();
    m_dialAt = now + m_delay.next();
}

void Conversation::giveUp() {
    m_dialAt.reset();
    m_isConnected = false;
    m_application = {};
    m_toApplication.clear();
    m_waitingTab.reset();
    m_tellsConnection = false;
    m_tellsLoss = m_tellsLoss || !m_isLossKnown;
    m_isLossKnown = true;
    tellBrowser();
}

void Conversation::fromBrowser(std::string_view bytes) {
    m_browser.feed(bytes, [this](std::string_view message) { fromExtension(message); });
}

bool Conversation::fromApplication(std::string_view bytes) {
    return m_application.feed(bytes, [this](std::string_view line) {
        if (line.size() > bridge::longestMessage || !isObject(line))
            return;
        // Only now: whoever accepts connections just to drop them is not to be dialled without a pause.
        m_delay.reset();
        if (!m_isAnswered) {
            m_isAnswered = true;
            m_isLossKnown = false;
            m_tellsConnection = true;
            tellBrowser();
        }
        appendNativeMessage(m_toBrowser, line);
    });
}

void Conversation::takenByBrowser(std::size_t count) {
    m_toBrowser.erase(0, count);
    tellBrowser();
}

void Conversation::takenByApplication(std::size_t count) {
    m_toApplication.erase(0, count);
    if (m_waitingTab && *m_waitingTab >= count)
        *m_waitingTab -= count;
    else
        m_waitingTab.reset();
}

void Conversation::fromExtension(std::string_view message) {
    if (!isObject(message))
        return;
    const bool isTab = typeOf(message) == bridge::typeTab;
    if (!isTab && !m_isConnected)
        return;
    std::string line(message);
    // JSON has newlines only between its parts: in its strings they are escaped.
    std::replace(line.begin(), line.end(), '\n', ' ');
    if (isTab) {
        m_lastTab = std::move(line);
        sendTab();
    } else {
        m_waitingTab.reset();
        m_toApplication.append(line).push_back('\n');
    }
}

void Conversation::sendTab() {
    if (!m_isConnected || m_lastTab.empty())
        return;
    // An application that is behind needs to know only where the user is now.
    if (m_waitingTab && m_toApplication.size() > crowdedSize)
        m_toApplication.resize(*m_waitingTab);
    m_waitingTab = m_toApplication.size();
    m_toApplication.append(m_lastTab).push_back('\n');
}

void Conversation::tellBrowser() {
    // A browser that does not read is told later, and then only what came of it.
    if (m_toBrowser.size() > crowdedSize)
        return;
    if (m_tellsLoss)
        appendNativeMessage(m_toBrowser, object(bridge::typeDisconnected));
    if (m_tellsConnection)
        appendNativeMessage(m_toBrowser, object(bridge::typeConnected));
    m_tellsLoss = false;
    m_tellsConnection = false;
}

} // namespace fendrel::relay
