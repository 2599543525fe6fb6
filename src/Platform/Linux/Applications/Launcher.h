#pragma once

#include "Platform/Linux/Applications/DesktopEntry.h"

#include <QList>
#include <QUrl>
#include <QVariantList>

#include <optional>

namespace fendrel {

/// Starts applications in sessions of their own, so that they outlive us. Main thread. With `time`, the server's time
/// of the user's wish, the window manager is asked to put the new window in front. What cannot be started leaves a line
/// in the log.
class Launcher {
public:
    using Time = std::optional<quint32>;

    void launch(const DesktopEntry& entry, Time time);
    /// By the action that the entry has for it; else once more, on which an application with one process opens one.
    void openWindow(const DesktopEntry& entry, Time time);
    void open(const DesktopEntry& entry, const QList<QUrl>& files, Time time);
    void runAction(const DesktopEntry& entry, const QString& actionID, Time time);

private:
    void start(const DesktopEntry& entry, const std::optional<QStringList>& line, Time time);
    void startDetached(const DesktopEntry& entry, const QStringList& arguments, Time time);
    void callOnBus(const DesktopEntry& entry, const QString& method, QVariantList arguments, Time time);
    QString startupID(quint32 time);

    int m_launchCount = 0;
};

/// The command that shows `arguments` in the terminal that the user prefers; nothing when there is no terminal.
std::optional<QStringList> inTerminal(const QStringList& arguments);

} // namespace fendrel
