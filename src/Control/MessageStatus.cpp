#include "Control/MessageStatus.h"

#include "App/AppController.h"

#include <ranges>

namespace fendrel::control {

using namespace Qt::StringLiterals;

namespace {

using Urgent = QHash<qint64, QString>;

// An answer is one line, which has to stay below what a line may have.
constexpr qsizetype longestText = 500;
constexpr qsizetype mostListed = 100;
constexpr qsizetype mostInDigest = 20;

QJsonObject messageObject(const HeldMessages::Message& message, const Urgent& urgent, const Workspace& workspace) {
    const auto why = urgent.constFind(message.id);
    return {{u"id"_s, message.id},
            {u"app"_s, message.bundleID},
            {u"appName"_s, workspace.displayName(message.bundleID)},
            {u"title"_s, message.title.left(longestText)},
            {u"subtitle"_s, message.subtitle.left(longestText)},
            {u"body"_s, message.body.left(longestText)},
            {u"date"_s, toDateTime(message.date).toString(Qt::ISODateWithMs)},
            {u"urgent"_s, why == urgent.cend() ? QJsonValue() : QJsonValue(*why)}};
}

QJsonValue alertObject(AppController& controller) {
    const auto& alert = controller.messages().alert();
    if (!alert)
        return {};
    return QJsonObject{
        {u"message"_s, messageObject(alert->message, controller.messages().urgent(), controller.workspace())},
        {u"mode"_s, alert->mode.id},
        {u"why"_s, alert->why},
        {u"wait"_s, alert->wait.count()}};
}

QJsonValue digestObject(AppController& controller) {
    const auto& digest = controller.messages().digest();
    if (!digest)
        return {};
    QJsonArray messages;
    for (const auto& message : digest->messages | std::views::take(mostInDigest))
        messages.append(messageObject(message, digest->urgent, controller.workspace()));
    return QJsonObject{{u"mode"_s, digest->mode.id}, {u"count"_s, digest->messages.size()}, {u"messages"_s, messages}};
}

} // namespace

QJsonObject messagesObject(AppController& controller) {
    const HeldMessages& messages = controller.messages();
    QJsonObject held;
    for (const Mode& mode : controller.engine().modes()) {
        if (const auto count = messages.count(mode); count > 0)
            held.insert(mode.id, count);
    }
    return {{u"held"_s, held},
            {u"alert"_s, alertObject(controller)},
            {u"digest"_s, digestObject(controller)},
            {u"problem"_s, messages.canRead() ? QJsonValue() : QJsonValue(messages.unavailableReason())}};
}

QJsonArray heldFor(AppController& controller, const QString& modeID) {
    const HeldMessages& messages = controller.messages();
    QJsonArray list;
    const auto held = messages.held().value(modeID);
    for (const HeldMessages::Message& message : held | std::views::reverse | std::views::take(mostListed))
        list.append(messageObject(message, messages.urgent(), controller.workspace()));
    return list;
}

} // namespace fendrel::control
