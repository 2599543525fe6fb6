#pragma once

#include "App/AppController.h"
#include "fakes/FakePlatform.h"

#include <optional>

namespace fendrel {

/// The whole application without its interface, over a platform of fakes. Onboarding is done; the modes are the
/// ones that a new user gets, with one application each: `notes` in "writing", the current one, `code` in
/// "building" and `chat` in "social", which takes 15 s to enter.
struct ControllerWorld {
    ControllerWorld() {
        fake.settings->values.insert(QStringLiteral("onboardingDone"), true);
        for (const QString& id : {notes, code, chat})
            fake.applications->locations.insert(id, id);
    }
    AppController& launch(const QString& settingsPane = {}) {
        controller.emplace(fake.platform);
        controller->onShowOnboarding = [this] { shown.append(QStringLiteral("onboarding")); };
        controller->onShowSettings = [this](const QString& pane) { shown.append(QStringLiteral("settings ") + pane); };
        controller->onLayoutDocks = [this] { shown.append(QStringLiteral("docks")); };
        controller->onAttention = [this] { shown.append(QStringLiteral("attention")); };
        controller->onQuit = [this] { shown.append(QStringLiteral("quit")); };
        controller->onAlert = [this](const Alert& alert) {
            shown.append(alert.message);
            lastAlert = alert;
        };
        controller->launch(settingsPane);
        return *controller;
    }
    /// Starts the application, with one window.
    qint64 run(const QString& bundleID) {
        const qint64 pid = fake.applications->launch(bundleID, bundleID.section(u'.', -1));
        fake.accessibility->addWindow(pid, QStringLiteral("A window"));
        return pid;
    }
    void front(std::optional<qint64> pid) { fake.applications->bringToFront(pid); }
    bool answer(const char* mode, const char* certainty) {
        return fake.languageModel->answerNext({{{QStringLiteral("mode"), QString::fromLatin1(mode)},
                                                {QStringLiteral("certainty"), QString::fromLatin1(certainty)},
                                                {QStringLiteral("what"), QStringLiteral("Chatter")}}});
    }
    void commit(const QString& modeID) { controller->engine().commit(Mode(*controller->engine().mode(modeID))); }
    QString gated() {
        const auto& blocked = controller->gate().blocked();
        if (!blocked)
            return {};
        return blocked->site() ? blocked->site()->host : blocked->app()->bundleID;
    }
    QStringList takeRequests() { return std::exchange(fake.applications->requests, {}); }

    static inline const QString notes = QStringLiteral("md.obsidian");
    static inline const QString code = QStringLiteral("com.microsoft.VSCode");
    static inline const QString chat = QStringLiteral("com.tinyspeck.slackmacgap");

    FakePlatform fake;
    QStringList shown; ///< what the interface was asked for, in order; alerts by their message
    Alert lastAlert;
    std::optional<AppController> controller;
};

} // namespace fendrel
