#pragma once

#include "Base/FileDescriptor.h"
#include "Relay/Conversation.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <cstddef>
#include <memory>
#include <optional>

namespace fendrel::relay {

/// The bytes' way: between the browser at the standard input and `toBrowser`, and the application at its socket.
class Relay {
public:
    /// `toBrowser` does not block. Without an address the application is never dialled. `browser` is a process id.
    Relay(FileDescriptor toBrowser, std::optional<sockaddr_un> application, long browser);

    /// Until the browser closes a stream. The exit status: other than 0 after an error, which is told on standard
    /// error.
    int run();

private:
    enum class Browser { there, gone, broken };

    void dialIfDue();
    int timeout() const;
    Browser serveBrowser(short events);
    void serveApplication(short events);
    bool sendToBrowser();
    void sendToApplication();
    void hangUp();

    FileDescriptor m_toBrowser;
    std::optional<sockaddr_un> m_address;
    FileDescriptor m_application;
    Conversation m_conversation;
    // Not filled beforehand: what is not touched takes no memory.
    static constexpr std::size_t pieceSize = 65'536;
    std::unique_ptr<char[]> m_piece = std::make_unique_for_overwrite<char[]>(pieceSize);
};

} // namespace fendrel::relay
