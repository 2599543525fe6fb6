#pragma once

#include "Platform/Linux/Applications/DesktopEntry.h"

#include <optional>

namespace fendrel {

/// Starts applications in sessions of their own, so that they outlive us. Main thread.
class Launcher {
public:
    /// Starts what the entry says. With `time`, the server's time of the user's wish, the window manager is asked to
    /// put the new window in front. What cannot be started leaves a line in the log.
    void launch(const DesktopEntry& entry, std::optional<quint32> time);

private:
    void start(const DesktopEntry& entry, const QStringList& arguments, std::optional<quint32> time);
    void activateOnBus(const DesktopEntry& entry);
    QString startupID(quint32 time);

    int m_launchCount = 0;
};

/// The command that shows `arguments` in the terminal that the user prefers; nothing when there is no terminal.
std::optional<QStringList> inTerminal(const QStringList& arguments);

} // namespace fendrel
