#include "Control/CommandHandlers.h"

#include "App/AppController.h"
#include "Control/AccountCommands.h"
#include "Control/AnswerCommands.h"
#include "Control/ContextCommands.h"
#include "Control/Duration.h"
#include "Control/MessageStatus.h"
#include "Control/SettingsAccess.h"
#include "Control/Status.h"
#include "Control/WidgetCommands.h"
#include "Modes/SiteName.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace fendrel::control {

using namespace Qt::StringLiterals;

namespace {

using Answer = Result<QJsonValue, QString>;

Answer done() {
    return QJsonValue();
}

} // namespace

CommandHandlers::CommandHandlers(AppController& controller) : m_controller(controller) {
    ModeEngine& engine = controller.engine();
    m_handlers = {
        {u"status"_s, [&](const Request&) -> Answer { return QJsonValue(status(controller)); }},
        {u"watch"_s, [](const Request&) { return done(); }}, // the server streams
        {u"modes"_s, [this](const Request&) { return modes(); }},
        {u"switch"_s, [this](const Request& request) { return switchMode(request.arguments[0]); }},
        {u"focus start"_s, [this](const Request& request) { return startFocus(request); }},
        {u"focus stop"_s,
         [&](const Request&) {
             controller.focus().stop();
             return done();
         }},
        {u"gate"_s, [this](const Request& request) { return answerGate(request.arguments[0]); }},
        {u"correct"_s, [this](const Request& request) { return correct(request.arguments[0]); }},
        {u"explain"_s, [&](const Request&) -> Answer { return QJsonValue(explanation(controller)); }},
        {u"held"_s,
         [this](const Request& request) {
             return withMode(request.arguments[0],
                             [&](const QString& id) { return Answer(QJsonValue(heldFor(m_controller, id))); });
         }},
        {u"alert"_s, [this](const Request& request) { return answerAlert(request.arguments[0]); }},
        {u"mode add-app"_s,
         [this, &engine](const Request& request) {
             return withMode(request.arguments[0], [&](const QString& id) {
                 engine.addApp(request.arguments[1], id);
                 return done();
             });
         }},
        {u"mode remove-app"_s,
         [this, &engine](const Request& request) {
             return withMode(request.arguments[0], [&](const QString& id) {
                 if (!engine.mode(id)->apps.contains(request.arguments[1]))
                     return Answer::failure(u"%1 has no application %2"_s.arg(id, request.arguments[1]));
                 engine.removeApp(request.arguments[1], id);
                 return done();
             });
         }},
        {u"mode add-site"_s,
         [this, &engine](const Request& request) {
             return withMode(request.arguments[0], [&](const QString& id) {
                 const auto site = siteName(request.arguments[1]);
                 if (!site)
                     return Answer::failure(u"'%1' names no web site"_s.arg(request.arguments[1]));
                 engine.addSite(*site, id);
                 return done();
             });
         }},
        {u"mode remove-site"_s,
         [this, &engine](const Request& request) {
             return withMode(request.arguments[0], [&](const QString& id) {
                 const QString site = siteName(request.arguments[1]).value_or(request.arguments[1]);
                 if (!engine.mode(id)->sites.contains(site))
                     return Answer::failure(u"%1 has no site %2"_s.arg(id, site));
                 engine.removeSite(site, id);
                 return done();
             });
         }},
        {u"settings list"_s,
         [&](const Request&) -> Answer {
             QJsonObject all;
             for (const QString& name : SettingsAccess::names(controller.preferences()))
                 all.insert(name, *SettingsAccess::get(controller.preferences(), name));
             return QJsonValue(all);
         }},
        {u"settings get"_s, [this](const Request& request) { return getSetting(request.arguments[0]); }},
        {u"settings set"_s,
         [this](const Request& request) { return setSetting(request.arguments[0], request.arguments[1]); }},
        {u"settings reset"_s,
         [&controller](const Request& request) {
             const auto problem = SettingsAccess::reset(controller.preferences(), request.arguments[0]);
             return problem ? Answer::failure(*problem) : done();
         }},
        {u"settings open"_s, [this](const Request& request) { return openSettings(request.arguments[0]); }},
        {u"modes open"_s,
         [this, &controller](const Request& request) {
             if (request.arguments.isEmpty()) {
                 controller.showModes();
                 return done();
             }
             return withMode(request.arguments[0], [&](const QString& id) {
                 controller.showModes(id);
                 return done();
             });
         }},
        {u"onboarding show"_s,
         [&](const Request&) {
             controller.showOnboarding();
             return done();
         }},
        {u"onboarding finish"_s, [this](const Request& request) { return finishOnboarding(request.arguments); }},
        {u"dock focus"_s,
         [&](const Request&) {
             controller.focusDock();
             return done();
         }},
        {u"dock replace"_s, [this](const Request& request) { return replaceDock(request.arguments[0]); }},
        {u"undo"_s,
         [&](const Request&) {
             if (!controller.undo().offer())
                 return Answer::failure(u"there is nothing to take back"_s);
             controller.undo().runUndo();
             return done();
         }},
        {u"answers"_s,
         [&](const Request& request) -> Answer { return QJsonValue(learnedAnswers(controller, request.arguments)); }},
        {u"answers forget"_s, [&](const Request& request) { return forgetAnswers(controller.classifier(), request); }},
        {u"suggestion"_s, [&](const Request& request) { return answerSuggestion(controller, request.arguments[0]); }},
        {u"context list"_s, [&](const Request&) -> Answer { return QJsonValue(listContexts(controller)); }},
        {u"context restore"_s,
         [&](const Request& request) { return restoreContext(controller, request.arguments.value(0)); }},
        {u"context dismiss"_s, [&](const Request&) { return dismissContext(controller); }},
        {u"context forget"_s, [&](const Request& request) { return forgetContext(controller, request); }},
        {u"widget"_s, [&](const Request& request) { return showWidget(controller, request.arguments[0]); }},
        {u"import undo"_s,
         [&](const Request&) {
             if (!controller.backup().canUndo())
                 return Answer::failure(u"nothing was imported in this run"_s);
             controller.backup().undo();
             return done();
         }},
        {u"quit"_s,
         [&](const Request&) {
             controller.quit();
             return done();
         }},
        {u"activate"_s,
         [&](const Request& request) {
             controller.startedAgain(request.arguments.value(0));
             return done();
         }},
#ifdef FENDREL_TIME_TRAVEL
        {u"debug skip"_s, [this](const Request& request) { return skipTime(request.arguments[0]); }},
#endif
    };
    m_lateHandlers = {
        {u"account list"_s,
         [&](const Request&, const Answered& answered) { return listAccounts(controller.accounts(), answered); }},
        {u"account set"_s,
         [&](const Request& request, const Answered& answered) {
             return setAccount(controller.accounts(), request, answered);
         }},
        {u"account remove"_s,
         [&](const Request& request, const Answered& answered) {
             return removeAccount(controller.accounts(), request, answered);
         }},
        {u"widgets"_s, [&](const Request&, const Answered& answered) { return listWidgets(controller, answered); }},
        {u"export"_s, [this](const Request& request, const Answered& answered) { return exportTo(request, answered); }},
        {u"import"_s,
         [this](const Request& request, const Answered& answered) { return importFrom(request, answered); }},
    };
}

void CommandHandlers::run(const Request& request, Answered answered) {
    const Command* known = command(request.command);
    const auto least = known ? std::ranges::count(known->parameters, Parameter::Count::one, &Parameter::count) : 0;
    if (known && request.arguments.size() < least) {
        answered(Answer::failure(u"usage: "_s + usage(*known)));
        return;
    }
    if (const auto handler = m_handlers.constFind(request.command); handler != m_handlers.constEnd()) {
        answered((*handler)(request));
        return;
    }
    const auto late = m_lateHandlers.constFind(request.command);
    if (late == m_lateHandlers.constEnd()) {
        answered(Answer::failure(u"unknown command '%1'"_s.arg(request.command)));
        return;
    }
    const quint64 number = ++m_lastNumber;
    m_underWay.try_emplace(number);
    Handle handle = (*late)(request, [this, number, answered = std::move(answered)](const Answer& answer) {
        // Taken out first: whoever is told may end the program.
        const auto ended = m_underWay.extract(number);
        answered(answer);
    });
    // It may have been answered meanwhile.
    if (const auto found = m_underWay.find(number); found != m_underWay.end())
        found->second = std::move(handle);
}

Answer CommandHandlers::replaceDock(const QString& wish) {
    if (wish != "on"_L1 && wish != "off"_L1)
        return Answer::failure(u"'%1' is neither on nor off"_s.arg(wish));
    m_controller.setReplacesDock(wish == "on"_L1);
    return done();
}

Answer CommandHandlers::modes() const {
    QJsonArray list;
    for (const Mode& mode : m_controller.engine().modes()) {
        list.append(QJsonObject{{u"id"_s, mode.id},
                                {u"name"_s, mode.name},
                                {u"symbol"_s, mode.symbol},
                                {u"tint"_s, hex(mode.tint)},
                                {u"current"_s, mode.id == m_controller.engine().current().id},
                                {u"apps"_s, QJsonArray::fromStringList(mode.apps)},
                                {u"sites"_s, QJsonArray::fromStringList(mode.sites)},
                                {u"entryDelay"_s, mode.entryDelay.count()},
                                {u"dailyBudget"_s, mode.dailyBudget.count()}});
    }
    return QJsonValue(list);
}

Answer CommandHandlers::withMode(const QString& id, const std::function<Answer(const QString&)>& edit) {
    if (!m_controller.engine().mode(id))
        return Answer::failure(u"unknown mode '%1'"_s.arg(id));
    return edit(id);
}

Answer CommandHandlers::switchMode(const QString& id) {
    return withMode(id, [this](const QString& known) {
        ModeEngine& engine = m_controller.engine();
        engine.requestSwitch(Mode(*engine.mode(known)));
        return done();
    });
}

Answer CommandHandlers::startFocus(const Request& request) {
    const auto option = request.options.constFind(u"for"_s);
    if (option == request.options.constEnd()) {
        m_controller.focus().start();
        return done();
    }
    const auto duration = parseDuration(*option);
    if (!duration)
        return Answer::failure(u"'%1' is no duration: 25m or 1h30m is expected"_s.arg(*option));
    m_controller.focus().start(*duration);
    return done();
}

#ifdef FENDREL_TIME_TRAVEL
Answer CommandHandlers::skipTime(const QString& text) {
    const auto duration = parseDuration(text);
    if (!duration)
        return Answer::failure(u"'%1' is no duration: 25m or 1h30m is expected"_s.arg(text));
    if (!m_controller.platform().skipTime)
        return Answer::failure(u"time can't be skipped"_s);
    m_controller.platform().skipTime(std::chrono::duration_cast<Clock::Duration>(*duration));
    return done();
}
#endif

Answer CommandHandlers::answerGate(const QString& answer) {
    if (!gateAnswers().contains(answer))
        return Answer::failure(u"'%1' is no answer: one of %2 is expected"_s.arg(answer, gateAnswers().join(u", ")));
    if (!m_controller.gate().blocked())
        return Answer::failure(u"the gate is closed"_s);
    DriftHandling& drift = m_controller.drift();
    if (answer == "stay"_L1)
        drift.stay();
    else if (answer == "switch"_L1)
        drift.switchToOwner();
    else if (answer == "allow-once"_L1)
        drift.allowOnce();
    else
        drift.addToMode();
    return done();
}

Answer CommandHandlers::answerAlert(const QString& answer) {
    if (answer != "open"_L1 && answer != "dismiss"_L1)
        return Answer::failure(u"'%1' is no answer: one of open, dismiss is expected"_s.arg(answer));
    if (!m_controller.messages().alert())
        return Answer::failure(u"there is no alert"_s);
    if (answer == "open"_L1)
        m_controller.messages().go();
    else
        m_controller.messages().dismissAlert();
    return done();
}

Answer CommandHandlers::correct(const QString& mode) {
    if (!m_controller.classifier().front())
        return Answer::failure(u"nothing in front is judged"_s);
    if (mode == "none"_L1) {
        m_controller.drift().correctFront({});
        return done();
    }
    return withMode(mode, [this](const QString& id) {
        m_controller.drift().correctFront(id);
        return done();
    });
}

Answer CommandHandlers::getSetting(const QString& name) const {
    const auto value = SettingsAccess::get(m_controller.preferences(), name);
    if (!value)
        return Answer::failure(u"unknown setting '%1'"_s.arg(name));
    return *value;
}

Answer CommandHandlers::setSetting(const QString& name, const QString& text) {
    if (const auto problem = SettingsAccess::set(m_controller.preferences(), name, text))
        return Answer::failure(*problem);
    return done();
}

Answer CommandHandlers::openSettings(const QString& pane) {
    if (!AppController::settingsPanes().contains(pane)) {
        return Answer::failure(
            u"unknown pane '%1': one of %2 is expected"_s.arg(pane, AppController::settingsPanes().join(u", ")));
    }
    m_controller.showSettings(pane);
    return done();
}

Answer CommandHandlers::finishOnboarding(const QStringList& templates) {
    if (m_controller.isOnboardingDone())
        return Answer::failure(u"the first run is over"_s);
    for (const QString& id : templates) {
        const auto& known = m_controller.engine().catalog().templates;
        if (std::ranges::find(known, id, &Mode::id) == known.end())
            return Answer::failure(u"unknown mode '%1'"_s.arg(id));
    }
    m_controller.finishOnboarding(templates);
    return done();
}

Handle CommandHandlers::exportTo(const Request& request, Answered answered) {
    return m_controller.backup().write(request.arguments[0], [answered = std::move(answered)](const auto& problem) {
        answered(problem ? Answer::failure(*problem) : done());
    });
}

Handle CommandHandlers::importFrom(const Request& request, Answered answered) {
    return m_controller.backup().read(request.arguments[0], [this, answered = std::move(answered)](const auto& read) {
        if (!read) {
            answered(Answer::failure(read.error()));
            return;
        }
        m_controller.backup().use(*read);
        answered(QJsonValue(QJsonObject{{u"modes"_s, read->modes.size()},
                                        {u"settings"_s, read->settings.size()},
                                        {u"answers"_s, read->answers.size()},
                                        {u"skipped"_s, read->skipped}}));
    });
}

} // namespace fendrel::control
