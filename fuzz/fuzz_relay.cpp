// A browser and an application that do anything in any order: the relay says nothing wrong to either, and keeps little.

#include "Relay/Conversation.h"
#include "Relay/Message.h"
#include "Require.h"

#include <cstdint>
#include <string>
#include <string_view>

using namespace fendrel;
using namespace fendrel::relay;

namespace {

/// The most that waits for a side that does not read: what is allowed to wait, and what one more piece can bring.
constexpr std::size_t mostWaiting = 4 * bridge::longestMessage;
constexpr std::size_t longestPiece = 65'536;

/// The input as what happens, one letter a step. After a letter that wants bytes: how many, how often (mostly once:
/// what is long is slow), and they. After one that wants numbers: they. So seeds can be written by hand.
class Script {
public:
    explicit Script(std::string_view text) : m_text(text) {}
    bool isAtEnd() const { return m_text.empty(); }
    std::size_t number() {
        const std::string_view byte = cut(1);
        return byte.empty() ? 0 : static_cast<unsigned char>(byte.front());
    }
    std::string bytes() {
        const std::size_t size = number(), often = number(), times = often < 240 ? 1 : 16 * (often - 239);
        const std::string_view once = cut(size);
        std::string all;
        for (std::size_t count = 0; count < times && all.size() + once.size() <= longestPiece; ++count)
            all += once;
        return all;
    }

private:
    std::string_view cut(std::size_t most) {
        const std::string_view piece = m_text.substr(0, most);
        m_text.remove_prefix(piece.size());
        return piece;
    }

    std::string_view m_text;
};

class Run {
public:
    void step(Script& script) {
        m_now += std::chrono::milliseconds(100);
        switch (script.number()) {
        case 'c': // the application can be reached
            if (mayDial())
                connect();
            break;
        case 'l': // it cannot, or it goes
            if (m_isConnected || mayDial())
                lose();
            break;
        case 'b':
            fromBrowser(script.bytes());
            break;
        case 'm': // a whole message
            fromBrowser(native(script.bytes()));
            break;
        case 'a':
            fromApplication(script.bytes());
            break;
        case 'B':
            takeAsBrowser(script.number() * script.number());
            break;
        case 'A':
            takeAsApplication(script.number() * script.number());
            break;
        default:
            break;
        }
        require(m_conversation.toBrowser().size() <= mostWaiting);
        require(m_conversation.toApplication().size() <= mostWaiting);
        require(m_isConnected || m_conversation.toApplication().empty());
        require(m_conversation.dialAt().has_value() != m_isConnected);
    }

    void end() {
        while (!m_conversation.toBrowser().empty())
            takeAsBrowser(mostWaiting);
        takeAsApplication(mostWaiting);
        require(m_browserReader.isBetweenMessages());
        require(m_isConnected || m_isImitated || m_tells.empty() || m_tells == bridge::typeDisconnected);
    }

private:
    bool mayDial() const { return !m_isConnected && m_now >= *m_conversation.dialAt(); }

    void connect() {
        m_isConnected = true;
        m_isGreeted = false;
        m_applicationReader = {};
        m_conversation.connected();
    }

    void lose() {
        m_isConnected = false;
        m_conversation.lost(m_now);
        require(*m_conversation.dialAt() > m_now);
    }

    static std::string native(const std::string& text) {
        std::string message;
        appendNativeMessage(message, text);
        return message;
    }

    void fromBrowser(const std::string& bytes) {
        if (m_conversation.wantsBrowser())
            m_conversation.fromBrowser(bytes);
    }

    void fromApplication(const std::string& bytes) {
        m_isImitated = m_isImitated || bytes.find("connected") != std::string::npos;
        if (m_isConnected && m_conversation.wantsApplication() && !m_conversation.fromApplication(bytes))
            lose();
    }

    void takeAsBrowser(std::size_t most) {
        const std::string bytes(m_conversation.toBrowser().substr(0, most));
        m_conversation.takenByBrowser(bytes.size());
        m_browserReader.feed(bytes, [&](std::string_view message) {
            require(isObject(message));
            require(message.find('\n') == std::string_view::npos);
            if (const auto type = typeOf(message); type == bridge::typeConnected || type == bridge::typeDisconnected)
                m_tells = type;
            else // the application's own
                require(m_isImitated || m_tells == bridge::typeConnected);
        });
    }

    void takeAsApplication(std::size_t most) {
        const std::string bytes(m_conversation.toApplication().substr(0, most));
        m_conversation.takenByApplication(bytes.size());
        require(m_applicationReader.feed(bytes, [&](std::string_view line) {
            require(isObject(line));
            require(m_isGreeted || typeOf(line) == bridge::typeHello);
            m_isGreeted = true;
        }));
    }

    Conversation m_conversation{77};
    Conversation::Moment m_now{};
    NativeReader m_browserReader;
    LineFramer m_applicationReader;
    bool m_isConnected = false;
    bool m_isGreeted = false;
    std::string m_tells;       ///< the last that the relay told of the connection
    bool m_isImitated = false; ///< perhaps not the relay, but the application told so
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Script script({reinterpret_cast<const char*>(data), size});
    Run run;
    while (!script.isAtEnd())
        run.step(script);
    run.end();
    return 0;
}
