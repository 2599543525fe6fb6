#include "Control/fendrelctl/SecretInput.h"

#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace fendrel::control {

namespace {

constexpr qsizetype longestSecret = qsizetype{16} * 1024;

volatile std::sig_atomic_t caughtSignal = 0;

/// While it lives, the terminal shows nothing of what is typed, and comes back to itself before a signal ends us.
class Unseen {
public:
    Unseen() {
        ::tcgetattr(STDIN_FILENO, &m_before);
        struct sigaction caught {};
        caught.sa_handler = [](int signal) { caughtSignal = signal; }; // which ends the reading
        for (std::size_t index = 0; index < signals.size(); ++index)
            ::sigaction(signals[index], &caught, &m_actions[index]);
        termios silent = m_before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    ~Unseen() {
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before);
        std::fputc('\n', stderr);
        for (std::size_t index = 0; index < signals.size(); ++index)
            ::sigaction(signals[index], &m_actions[index], nullptr);
        if (caughtSignal != 0)
            ::raise(caughtSignal);
    }
    Unseen(const Unseen&) = delete;
    Unseen& operator=(const Unseen&) = delete;

private:
    static constexpr std::array signals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

    termios m_before{};
    std::array<struct sigaction, signals.size()> m_actions{};
};

std::optional<QString> readAll(bool onlyOneLine) {
    QByteArray bytes;
    bytes.reserve(longestSecret + 1024); // no copy is left behind by growing
    std::array<char, 1024> buffer{};
    while (bytes.size() < longestSecret && !(onlyOneLine && bytes.contains('\n'))) {
        const auto count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR && caughtSignal == 0)
            continue;
        if (count <= 0)
            break;
        bytes.append(buffer.data(), count);
    }
    const QString text = QString::fromUtf8(bytes).trimmed();
    ::explicit_bzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
    ::explicit_bzero(buffer.data(), buffer.size());
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

} // namespace

std::optional<QString> readSecret(const QString& prompt) {
    if (::isatty(STDIN_FILENO) == 0)
        return readAll(false);
    std::fputs(prompt.toLocal8Bit().constData(), stderr);
    const Unseen unseen;
    return readAll(true);
}

} // namespace fendrel::control
