#include "Platform/Linux/Applications/Launcher.h"

#include "Base/Log.h"
#include "Platform/Linux/Applications/DetachedCommand.h"
#include "Platform/Linux/Applications/ExecLine.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QSysInfo>
#include <QVariantMap>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

std::optional<QStringList> inTerminal(const QStringList& arguments) {
    struct Terminal {
        QString program{};
        QString option{}; ///< comes before the command; empty when nothing does
    };
    const QList<Terminal> terminals{
        {u"xdg-terminal-exec"_s, {}},
        {qEnvironmentVariable("TERMINAL"), u"-e"_s},
        {u"x-terminal-emulator"_s, u"-e"_s},
        {u"gnome-terminal"_s, u"--"_s},
        {u"kgx"_s, u"--"_s},
        {u"konsole"_s, u"-e"_s},
        {u"xfce4-terminal"_s, u"-x"_s},
        {u"mate-terminal"_s, u"-x"_s},
        {u"qterminal"_s, u"-e"_s},
        {u"kitty"_s, {}},
        {u"alacritty"_s, u"-e"_s},
        {u"foot"_s, {}},
        {u"xterm"_s, u"-e"_s},
    };
    for (const auto& [program, option] : terminals) {
        if (program.isEmpty() || QStandardPaths::findExecutable(program).isEmpty())
            continue;
        QStringList command{program};
        if (!option.isEmpty())
            command.append(option);
        return command + arguments;
    }
    return {};
}

void Launcher::launch(const DesktopEntry& entry, Time time) {
    if (entry.exec.isEmpty())
        callOnBus(entry, u"Activate"_s, {}, time);
    else
        start(entry, execArguments(entry), time);
}

void Launcher::openWindow(const DesktopEntry& entry, Time time) {
    // No standard names it; these are what applications call it, written in one way or another.
    const QStringList names{u"newwindow"_s, u"newemptywindow"_s};
    const auto action = std::ranges::find_if(entry.actions, [&](const DesktopAction& offered) {
        return names.contains(QString(offered.id).remove(u'-').remove(u'_').toLower());
    });
    if (action == entry.actions.end())
        launch(entry, time);
    else
        runAction(entry, action->id, time);
}

void Launcher::open(const DesktopEntry& entry, const QList<QUrl>& files, Time time) {
    if (entry.exec.isEmpty()) {
        callOnBus(entry, u"Open"_s, {QUrl::toStringList(files, QUrl::FullyEncoded)}, time);
        return;
    }
    const auto lines = execLines(entry, files);
    if (lines.isEmpty())
        qCWarning(logDesktop).noquote() << entry.id << "doesn't open what was given to it";
    for (const QStringList& line : lines)
        start(entry, line, time);
}

void Launcher::runAction(const DesktopEntry& entry, const QString& actionID, Time time) {
    const auto action = std::ranges::find(entry.actions, actionID, &DesktopAction::id);
    if (action == entry.actions.end()) {
        qCWarning(logDesktop).noquote() << entry.id << "has no action" << actionID;
    } else if (action->exec.isEmpty()) {
        callOnBus(entry, u"ActivateAction"_s, {action->id, QVariantList()}, time);
    } else {
        DesktopEntry started = entry;
        started.exec = action->exec;
        start(started, execArguments(started), time);
    }
}

void Launcher::start(const DesktopEntry& entry, const std::optional<QStringList>& line, Time time) {
    const auto arguments = line && entry.needsTerminal ? inTerminal(*line) : line;
    if (arguments && !QStandardPaths::findExecutable(arguments->first()).isEmpty())
        startDetached(entry, *arguments, time);
    else
        qCWarning(logDesktop).noquote() << "Couldn't start" << entry.id + u": there is no program for"_s << entry.exec;
}

void Launcher::startDetached(const DesktopEntry& entry, const QStringList& arguments, Time time) {
    // The window is traced back to its entry by two variables. Only the new process knows its own number, so a shell
    // sets that one and then becomes the program.
    const QStringList shell{u"/bin/sh"_s, u"-c"_s, u"export GIO_LAUNCHED_DESKTOP_FILE_PID=$$; exec \"$@\""_s, u"sh"_s};
    QProcess process;
    prepareDetached(process, shell + arguments);
    auto environment = process.processEnvironment();
    environment.insert(u"GIO_LAUNCHED_DESKTOP_FILE"_s, entry.path);
    environment.remove(u"DESKTOP_STARTUP_ID"_s);
    environment.remove(u"XDG_ACTIVATION_TOKEN"_s);
    if (time)
        environment.insert(u"DESKTOP_STARTUP_ID"_s, startupID(*time));

    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(
        QDir(entry.workingFolder).exists() && !entry.workingFolder.isEmpty() ? entry.workingFolder : QDir::homePath());
    if (!process.startDetached())
        qCWarning(logDesktop).noquote() << "Couldn't start" << entry.id + u':' << process.errorString();
}

void Launcher::callOnBus(const DesktopEntry& entry, const QString& method, QVariantList arguments, Time time) {
    const QString path = u'/' + QString(entry.id).replace(u'.', u'/').replace(u'-', u'_');
    auto call = QDBusMessage::createMethodCall(entry.id, path, u"org.freedesktop.Application"_s, method);
    QVariantMap platformData;
    if (time)
        platformData.insert(u"desktop-startup-id"_s, startupID(*time));
    arguments.append(platformData);
    call.setArguments(arguments);
    QDBusConnection::sessionBus().send(call);
}

QString Launcher::startupID(quint32 time) {
    // Toolkits read the time behind "_TIME".
    return u"fendrel-%1-%2-%3_TIME%4"_s.arg(QCoreApplication::applicationPid())
        .arg(++m_launchCount)
        .arg(QSysInfo::machineHostName())
        .arg(time);
}

} // namespace fendrel
