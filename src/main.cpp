#include "App/AppController.h"
#include "Base/Log.h"
#include "Base/RecentLog.h"
#include "Control/ControlClient.h"
#include "Control/ControlServer.h"
#include "Control/InstanceLock.h"
#include "Dock/DockReplacement.h"
#include "Focus/HostManifests.h"
#include "Platform/MakePlatform.h"
#include "Platform/Shared/CrashReporter.h"
#include "Platform/Shared/EarlyExit.h"
#include "Platform/Shared/TerminationSignals.h"
#include "UI/Interface.h"

#include <QCommandLineParser>
#include <QDeadlineTimer>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QProcess>
#include <QThread>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <span>
#include <string_view>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

const QString restoreDockOption = u"restore-dock"_s;

struct Options {
    QString settingsPane;
    bool uninstalls = false;
    bool givesDockBack = false;
};

/// In the user's language; where there is no translation, in English, whose own one holds singulars and plurals.
void translateTexts(QGuiApplication& application) {
    for (const QLocale& language : {QLocale(QLocale::English), QLocale()}) {
        auto* texts = new QTranslator(&application);
        if (texts->load(language, u"fendrel"_s, u"_"_s, u":/translations"_s))
            QGuiApplication::installTranslator(texts);
    }
}

/// The end of the session asks as the toolkit does, and is to get the same orderly end as everybody else.
class QuitRequests : public QObject {
public:
    explicit QuitRequests(AppController& controller) : m_controller(controller) {}
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (receiver != qApp || event->type() != QEvent::Quit)
            return false;
        m_controller.quit();
        return true;
    }

private:
    AppController& m_controller;
};

int fail(const QString& message) {
    std::fprintf(stderr, "fendrel: %s\n", qUtf8Printable(message));
    return 1;
}

Options readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Takes the place of the dock and keeps you in one mode of work at a time."_s);
    const QCommandLineOption settingsPage(
        u"settings-page"_s, u"Open the settings at a pane: %1."_s.arg(AppController::settingsPanes().join(u", ")),
        u"pane"_s);
    const QCommandLineOption uninstall(
        u"uninstall"_s,
        u"Take back what Fendrel wrote into other programs' folders and settings, and end. Your modes stay."_s);
    const QCommandLineOption restoreDock(restoreDockOption,
                                         u"Give the desktop's dock back, if Fendrel was ended by force, and end."_s);
    parser.addOptions({settingsPage, uninstall, restoreDock});
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(arguments);
    return {.settingsPane = parser.value(settingsPage),
            .uninstalls = parser.isSet(uninstall),
            .givesDockBack = parser.isSet(restoreDock)};
}

/// A run that was killed may have left the desktop's dock hidden; its banners come back by themselves.
int giveDockBack() {
    Platform platform = makePlatformWithoutDisplay();
    DockReplacement replacement(*platform.systemDock, *platform.pointerGuard, *platform.displays, *platform.settings,
                                *platform.clock);
    replacement.stop([] { QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection); });
    return QCoreApplication::exec();
}

/// For a run that ends at this moment, when nobody can wait any more. A run that has begun since hides the dock itself.
int giveDockBackAfterwards() {
    const QDeadlineTimer deadline(std::chrono::seconds(5));
    while (!deadline.hasExpired()) {
        const control::InstanceLock lock(standardFolders().data);
        if (lock.state() == control::InstanceLock::State::held)
            return giveDockBack();
        QThread::msleep(20);
    }
    return 0;
}

int uninstall() {
    // Running, it would write all of it again.
    if (control::InstanceLock(standardFolders().data).state() == control::InstanceLock::State::heldByAnother)
        return fail(u"Fendrel is running; end it first: fendrelctl quit"_s);
    for (const QString& path : hostManifests::uninstall(standardBrowsers()))
        std::printf("removed %s\n", qUtf8Printable(path));
    return giveDockBack();
}

/// Brings the application that runs already to the user's attention.
int activateRunning(const QString& dataFolder, const Options& options) {
    const control::Request request{.command = u"activate"_s, .arguments = {options.settingsPane}};
    control::ControlClient client;
    // It may be starting itself, and not listen yet.
    const QDeadlineTimer deadline(control::ControlClient::patience);
    bool isConnected = client.connectTo(control::socketPath(dataFolder));
    while (!isConnected && !deadline.hasExpired()) {
        QThread::msleep(20);
        isConnected = client.connectTo(control::socketPath(dataFolder));
    }
    const bool isDone = isConnected && client.send(request, [](const QJsonObject&) { return false; });
    return isDone ? 0 : fail(u"Fendrel is running, but does not answer"_s);
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication::setApplicationName(u"Fendrel"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(FENDREL_VERSION));
    QGuiApplication::setDesktopFileName(u"org.fendrel.Fendrel"_s);
    const std::span words(argv, static_cast<std::size_t>(argc));
    const bool needsNoDisplay = std::ranges::any_of(words, [](std::string_view word) {
        return word == "--help" || word == "-h" || word == "--version" || word == "-v" || word == "--uninstall" ||
               word == "--restore-dock";
    });
    if (needsNoDisplay) {
        const QCoreApplication application(argc, argv);
        const Options options = readOptions(QCoreApplication::arguments());
        if (options.uninstalls)
            return uninstall();
        if (options.givesDockBack)
            return giveDockBackAfterwards();
    }
    if (const auto missing = missingRequirement())
        return fail(*missing);
    prepareToolkit();

    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    translateTexts(application);
    const Options options = readOptions(QGuiApplication::arguments());

    const Folders folders = standardFolders();
    const control::InstanceLock lock(folders.data);
    if (lock.state() == control::InstanceLock::State::heldByAnother)
        return activateRunning(folders.data, options);
    if (lock.state() == control::InstanceLock::State::failed)
        return fail(u"the folder %1 cannot be written"_s.arg(folders.data));

    const CrashReporter crashes(folders.crashes);
    const RecentLog log;
    QGuiApplication::setFont(QFont(u"Inter"_s));

    Platform platform = makePlatform();
    platform.recentLog = [&log] { return log.lines(); };
    AppController controller(platform);
    controller.onQuit = [] { QCoreApplication::exit(); };
    QuitRequests quitRequests(controller);
    application.installEventFilter(&quitRequests);
    TerminationSignals signals;
    signals.onTermination = [&controller] { controller.quit(); };
    // When the display is gone, as at the end of a session, there is no time left to give the dock back. What is needed
    // for that outlives the display.
    const EarlyExit earlyExit([&] {
        platform.disk->flush();
        if (controller.replacement().owesDock())
            QProcess::startDetached(QCoreApplication::applicationFilePath(), {u"--"_s + restoreDockOption});
    });
    const Interface interface(controller);
    control::ControlServer server(controller, folders.data);
    server.listen();
    controller.launch(options.settingsPane);
    return QGuiApplication::exec();
}
