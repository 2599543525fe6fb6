#pragma once

#include <cstddef>
#include <string_view>

/// What the application, the relay that browsers start, and the browsers' extension tell one another: JSON objects, one
/// a line on the application's socket, one a length-prefixed message between relay and browser. Each has its "type".
namespace fendrel::bridge {

/// What browsers know the relay by.
constexpr std::string_view hostName = "org.fendrel.bridge";

/// Below the user's data folder, which is $XDG_DATA_HOME or $HOME/.local/share.
constexpr std::string_view dataFolder = "Fendrel";
constexpr std::string_view socketFile = "bridge.sock";

/// Bytes. Browsers drop the relay that sends them more in one message.
constexpr std::size_t longestMessage = 1'048'576;

// Relay to application: the first line of each connection.
constexpr std::string_view typeHello = "hello";

// Extension to application.
constexpr std::string_view typeTab = "tab";
constexpr std::string_view typeAsk = "ask";
constexpr std::string_view typeClosed = "closed";

// Application to extension.
constexpr std::string_view typeVeil = "veil";
constexpr std::string_view typeUnveil = "unveil";
constexpr std::string_view typeBack = "back";
constexpr std::string_view typeOpen = "open";
constexpr std::string_view typeState = "state";

// Relay to extension: whether the application answers. It does so to the greeting, with its state.
constexpr std::string_view typeConnected = "connected";
constexpr std::string_view typeDisconnected = "disconnected";

} // namespace fendrel::bridge
