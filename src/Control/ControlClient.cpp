#include "Control/ControlClient.h"

#include <QFile>
#include <QJsonDocument>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace fendrel::control {

ControlClient::~ControlClient() {
    if (m_socket >= 0)
        ::close(m_socket);
}

bool ControlClient::connectTo(const QString& path) {
    const QByteArray bytes = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (bytes.size() >= static_cast<qsizetype>(sizeof(address.sun_path)))
        return false;
    std::memcpy(address.sun_path, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (m_socket >= 0)
        ::close(m_socket);
    m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    return m_socket >= 0 && ::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

void ControlClient::setPatience(std::chrono::seconds time) const {
    const timeval limit{.tv_sec = time.count(), .tv_usec = 0};
    ::setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof(limit));
    ::setsockopt(m_socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof(limit));
}

bool ControlClient::send(const Request& request, const std::function<bool(const QJsonObject&)>& take) {
    setPatience(command(request.command)->mayWait ? std::chrono::seconds() : patience);
    const QByteArray line = encode(request);
    for (qsizetype sent = 0; sent < line.size();) {
        const auto count =
            ::send(m_socket, line.constData() + sent, static_cast<std::size_t>(line.size() - sent), MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        sent += count;
    }
    bool wantsMore = true;
    while (wantsMore) {
        char buffer[16384];
        const auto count = ::recv(m_socket, buffer, sizeof(buffer), 0);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        const bool isSound = m_framer.feed({buffer, static_cast<std::size_t>(count)}, [&](std::string_view answer) {
            const auto bytes = QByteArray::fromRawData(answer.data(), static_cast<qsizetype>(answer.size()));
            setPatience({}); // what follows the first answer comes when something happens
            if (wantsMore)
                wantsMore = take(QJsonDocument::fromJson(bytes).object());
        });
        if (!isSound)
            return false;
    }
    return true;
}

} // namespace fendrel::control
