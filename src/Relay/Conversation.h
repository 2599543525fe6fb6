#pragma once

#include "Base/LineFramer.h"
#include "Relay/NativeFraming.h"
#include "Relay/RedialDelay.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace fendrel::relay {

/// All that the relay decides: which bytes follow from which, and when to dial. It knows no file descriptor and no
/// clock. What it keeps is bounded, however fast one side talks and however slowly the other listens.
class Conversation {
public:
    using Moment = std::chrono::steady_clock::time_point;

    /// `browser` is the browser's process id.
    explicit Conversation(long browser);

    // What happened.

    void connected();
    /// The application could not be reached, or the connection to it has ended.
    void lost(Moment now);
    /// The application can never be reached.
    void giveUp();
    void fromBrowser(std::string_view bytes);
    /// False when the application broke the protocol: the connection is to be ended.
    [[nodiscard]] bool fromApplication(std::string_view bytes);

    // What to do.

    /// When to dial the application; nothing while there is no need or no hope.
    std::optional<Moment> dialAt() const { return m_dialAt; }
    bool wantsBrowser() const { return m_toApplication.size() <= fullSize; }
    bool wantsApplication() const { return m_toBrowser.size() <= crowdedSize; }
    std::string_view toBrowser() const { return m_toBrowser; }
    std::string_view toApplication() const { return m_toApplication; }
    void takenByBrowser(std::size_t count);
    void takenByApplication(std::size_t count);

    /// Whether the browser can close the stream here without a message being cut off.
    bool isBetweenMessages() const { return m_browser.isBetweenMessages(); }

private:
    static constexpr std::size_t crowdedSize = 65'536;
    static constexpr std::size_t fullSize = bridge::longestMessage;

    void fromExtension(std::string_view message);
    void sendTab();
    void tellBrowser();

    std::string m_hello;
    NativeReader m_browser;
    LineFramer m_application;
    RedialDelay m_delay;
    std::optional<Moment> m_dialAt = Moment{};
    bool m_isConnected = false;
    bool m_isAnswered = false; ///< since then; a program that hangs can be connected to as well
    bool m_isLossKnown = false; ///< to the extension, or soon
    bool m_tellsLoss = false;
    bool m_tellsConnection = false;
    std::string m_toBrowser;
    std::string m_toApplication;
    std::string m_lastTab; ///< a line, without its newline
    /// Where in m_toApplication the last line begins, if it is a tab of which nothing has been taken.
    std::optional<std::size_t> m_waitingTab;
};

} // namespace fendrel::relay
