#include "Control/Status.h"

#include "App/AppController.h"
#include "Base/EnumNames.h"
#include "Base/Overloaded.h"
#include "Control/ContextCommands.h"
#include "Control/MessageStatus.h"

#include <QJsonArray>

#include <cmath>

namespace fendrel::control {

using namespace Qt::StringLiterals;

namespace {

QJsonValue text(const std::optional<QString>& value) {
    return value ? QJsonValue(*value) : QJsonValue();
}

double tenths(Seconds seconds) {
    return std::round(seconds.count() * 10) / 10;
}

QJsonValue pending(const ModeEngine& engine, StatusForm form) {
    if (!engine.pending())
        return {};
    QJsonObject object{{u"id"_s, engine.pending()->target.id}};
    if (form == StatusForm::marker)
        object.insert(u"due"_s, static_cast<qint64>(engine.pending()->due.time_since_epoch().count()));
    else
        object.insert(u"secondsLeft"_s, tenths(engine.pendingRemaining()));
    return object;
}

QJsonObject focus(const FocusSession& session) {
    const auto& end = session.endsAt();
    return {{u"on"_s, session.isOn()},
            {u"endsAt"_s, end ? QJsonValue(toDateTime(*end).toString(Qt::ISODateWithMs)) : QJsonValue()}};
}

QJsonValue front(const WindowTitles& titles) {
    const auto& front = titles.front();
    if (!front)
        return {};
    return QJsonObject{{u"bundleID"_s, front->bundleID},
                       {u"appName"_s, front->appName},
                       {u"title"_s, text(front->title)},
                       {u"pid"_s, front->pid}};
}

QJsonObject subjectObject(const Subject& subject) {
    return std::visit(
        Overloaded{
            [](const AppSubject& app) {
                return QJsonObject{{u"kind"_s, u"app"_s},
                                   {u"bundleID"_s, app.bundleID},
                                   {u"name"_s, app.name},
                                   {u"title"_s, text(app.title)}};
            },
            [](const SiteSubject& site) {
                return QJsonObject{{u"kind"_s, u"site"_s}, {u"host"_s, site.host}, {u"title"_s, site.title}};
            },
        },
        subject);
}

QJsonValue verdictObject(const std::optional<Verdict>& verdict) {
    if (!verdict)
        return {};
    return QJsonObject{{u"modeID"_s, text(verdict->modeID)},
                       {u"certainty"_s, enumName(verdict->certainty)},
                       {u"what"_s, verdict->what},
                       {u"source"_s, enumName(verdict->source)}};
}

QJsonValue judgement(const Classifier& classifier) {
    const auto& front = classifier.front();
    if (!front)
        return {};
    return QJsonObject{{u"subject"_s, subjectObject(front->subject)},
                       {u"state"_s, front->verdict ? u"judged"_s : u"classifying"_s},
                       {u"verdict"_s, verdictObject(front->verdict)}};
}

QJsonValue gate(const Gate& gate, StatusForm form) {
    const auto& blocked = gate.blocked();
    if (!blocked)
        return {};
    QJsonObject object{{u"name"_s, blocked->name},
                       {u"owner"_s, blocked->owner ? QJsonValue(blocked->owner->id) : QJsonValue()},
                       {u"note"_s, text(blocked->note)}};
    if (const Gate::Site* site = blocked->site()) {
        object.insert(u"kind"_s, u"site"_s);
        object.insert(u"host"_s, site->host);
        object.insert(u"browser"_s, static_cast<int>(site->tab.browser));
        object.insert(u"tabId"_s, static_cast<qint64>(site->tab.tab));
    } else {
        object.insert(u"kind"_s, u"app"_s);
        object.insert(u"bundleID"_s, blocked->app()->bundleID);
    }
    if (form == StatusForm::shown)
        object.insert(u"secondsWaited"_s, tenths(gate.waited()));
    return object;
}

QJsonObject budgets(AppController& controller) {
    QJsonObject object;
    for (const Mode& mode : controller.engine().modes()) {
        const DriftBudget& budget = controller.budget();
        object.insert(mode.id, QJsonObject{{u"used"_s, tenths(budget.used(mode.id))},
                                           {u"remaining"_s, tenths(budget.remaining(mode))},
                                           {u"inMode"_s, tenths(budget.inMode(mode.id))}});
    }
    return object;
}

QJsonValue tab(const std::optional<BrowserTab>& tab) {
    if (!tab)
        return {};
    return QJsonObject{{u"id"_s, static_cast<qint64>(tab->tabID)},
                       {u"url"_s, tab->url.toString(QUrl::FullyEncoded)},
                       {u"title"_s, tab->title},
                       {u"site"_s, text(tab->site())}};
}

QJsonArray browsers(AppController& controller) {
    QJsonArray list;
    for (const BrowserBridge::Browser& browser : controller.bridge().browsers()) {
        list.append(QJsonObject{{u"id"_s, static_cast<int>(browser.id)},
                                {u"app"_s, browser.app ? QJsonValue(browser.app->bundleID) : QJsonValue()},
                                {u"tab"_s, tab(controller.drift().sites().activeTab(browser.id))}});
    }
    return list;
}

QJsonArray veils(AppController& controller) {
    QJsonArray list;
    for (const SiteDrift::Veiled& veiled : controller.drift().sites().veiledTabs()) {
        list.append(QJsonObject{{u"browser"_s, static_cast<int>(veiled.tab.browser)},
                                {u"tabId"_s, static_cast<qint64>(veiled.tab.tabID)},
                                {u"site"_s, veiled.site},
                                {u"owner"_s, veiled.owner.id},
                                {u"asked"_s, veiled.asked}});
    }
    return list;
}

QJsonObject model(AppController& controller) {
    const QString reason = controller.platform().languageModel->unavailableReason();
    return {{u"available"_s, controller.classifier().isModelAvailable()},
            {u"problem"_s, reason.isEmpty() ? QJsonValue() : QJsonValue(reason)}};
}

QJsonObject dock(AppController& controller) {
    QJsonArray displays;
    for (const Display& display : controller.dockScreens())
        displays.append(QJsonObject{{u"id"_s, display.id}, {u"shown"_s, controller.isDockShown(display.id)}});
    const DockReplacement& replacement = controller.replacement();
    const QString system = replacement.dockName();
    return {{u"displays"_s, displays},
            {u"replaced"_s, replacement.isOn()},
            {u"system"_s, system.isEmpty() ? QJsonValue() : QJsonValue(system)},
            {u"guarded"_s, replacement.edgeGuard().isWorking()}};
}

} // namespace

QJsonObject status(AppController& controller, StatusForm form) {
    const Mode& mode = controller.engine().current();
    return {
        {u"mode"_s, QJsonObject{{u"id"_s, mode.id}, {u"name"_s, mode.name}}},
        {u"pending"_s, pending(controller.engine(), form)},
        {u"focus"_s, focus(controller.focus())},
        {u"front"_s, front(controller.titles())},
        {u"judgement"_s, judgement(controller.classifier())},
        {u"gate"_s, gate(controller.gate(), form)},
        {u"browsers"_s, browsers(controller)},
        {u"veils"_s, veils(controller)},
        {u"budgets"_s, budgets(controller)},
        {u"messages"_s, messagesObject(controller)},
        {u"suggestion"_s, suggestionObject(controller)},
        {u"offer"_s, offerObject(controller)},
        {u"missing"_s, QJsonArray::fromStringList(controller.context().missing())},
        {u"model"_s, model(controller)},
        {u"dock"_s, dock(controller)},
        {u"undo"_s, controller.undo().offer() ? QJsonValue(controller.undo().offer()->text) : QJsonValue()},
        {u"onboarding"_s, QJsonObject{{u"done"_s, controller.isOnboardingDone()}}},
    };
}

namespace {

QString reason(drift::Decision decision) {
    switch (decision) {
    case drift::Decision::noMode:
        return u"What belongs to no mode is never stopped."_s;
    case drift::Decision::currentMode:
        return u"That is the current mode."_s;
    case drift::Decision::notCertain:
        return u"Only what is certain is stopped."_s;
    case drift::Decision::allowedOnce:
        return u"You allowed it for this session."_s;
    case drift::Decision::noFocus:
        return u"That isn't the current mode, but without a focus session nothing is stopped."_s;
    case drift::Decision::notInFront:
    case drift::Decision::gate:
        break;
    }
    return u"That isn't the current mode, and a focus session is on: it is stopped."_s;
}

} // namespace

QJsonObject explanation(AppController& controller) {
    const auto& front = controller.classifier().front();
    if (!front) {
        const bool isSomethingInFront = controller.titles().front().has_value();
        return {{u"subject"_s, QJsonValue()},
                {u"verdict"_s, QJsonValue()},
                {u"because"_s,
                 QJsonArray{
                     isSomethingInFront
                         ? u"No mode lists what is in front, nothing is remembered of it, and it isn't asked about."_s
                         : u"Nothing is in front."_s}}};
    }
    QJsonArray because;
    if (!front->verdict) {
        because.append(u"The language model is being asked."_s);
    } else {
        const Verdict& verdict = *front->verdict;
        const Mode* mode = verdict.modeID ? controller.engine().mode(*verdict.modeID) : nullptr;
        const QString belongs = mode ? u"belongs to "_s + mode->name : u"belongs to no mode"_s;
        switch (verdict.source) {
        case Source::rule:
            because.append(u"It %1, which lists it."_s.arg(belongs));
            break;
        case Source::you:
            because.append(u"You said that it %1."_s.arg(belongs));
            break;
        case Source::model:
            because.append(u"The language model said that it %1 (%2), as: %3."_s.arg(
                belongs, enumName(verdict.certainty), verdict.what));
            break;
        }
        because.append(reason(controller.drift().decide(verdict, front->subject)));
    }
    return {{u"subject"_s, subjectObject(front->subject)},
            {u"verdict"_s, verdictObject(front->verdict)},
            {u"because"_s, because}};
}

} // namespace fendrel::control
