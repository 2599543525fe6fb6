#include "Control/ContextCommands.h"

#include "App/AppController.h"

#include <QJsonArray>
#include <QJsonObject>

namespace fendrel::control {

using namespace Qt::StringLiterals;

using Answer = CommandHandlers::Answer;

namespace {

QJsonObject object(const ModeSnapshot& snapshot) {
    QJsonArray pages;
    for (const ModeSnapshot::Page& page : snapshot.pages)
        pages.append(QJsonObject{{u"url"_s, page.url}, {u"title"_s, page.title}});
    QJsonArray documents;
    for (const ModeSnapshot::Document& document : snapshot.documents)
        documents.append(QJsonObject{{u"bundleID"_s, document.bundleID}, {u"url"_s, document.url}});
    return {{u"mode"_s, snapshot.modeID},
            {u"savedAt"_s, toDateTime(snapshot.savedAt).toString(Qt::ISODateWithMs)},
            {u"note"_s, snapshot.note ? QJsonValue(*snapshot.note) : QJsonValue()},
            {u"apps"_s, QJsonArray::fromStringList(snapshot.apps)},
            {u"pages"_s, pages},
            {u"documents"_s, documents}};
}

} // namespace

QJsonValue suggestionObject(AppController& controller) {
    const auto& suggestion = controller.suggestions().suggestion();
    if (!suggestion)
        return {};
    const auto orNull = [](const QString& text) { return text.isEmpty() ? QJsonValue() : QJsonValue(text); };
    return QJsonObject{{u"mode"_s, suggestion->mode.id},
                       {u"because"_s, suggestion->because},
                       {u"bundleID"_s, orNull(suggestion->bundleID)},
                       {u"icon"_s, orNull(suggestion->icon)},
                       {u"madeAt"_s, toDateTime(suggestion->madeAt).toString(Qt::ISODateWithMs)}};
}

QJsonValue offerObject(AppController& controller) {
    const auto& offer = controller.context().offer();
    return offer ? QJsonValue(object(offer->snapshot)) : QJsonValue();
}

Answer answerSuggestion(AppController& controller, const QString& answer) {
    if (answer != "accept"_L1 && answer != "dismiss"_L1)
        return Answer::failure(u"'%1' is no answer: one of accept, dismiss is expected"_s.arg(answer));
    if (!controller.suggestions().suggestion())
        return Answer::failure(u"nothing is suggested"_s);
    if (answer == "accept"_L1)
        controller.suggestions().accept();
    else
        controller.suggestions().dismiss();
    return QJsonValue();
}

QJsonArray listContexts(AppController& controller) {
    const ModeSnapshots& snapshots = controller.context().snapshots();
    QJsonArray list;
    for (const Mode& mode : controller.engine().modes()) {
        if (const auto snapshot = snapshots.constFind(mode.id); snapshot != snapshots.constEnd())
            list.append(object(*snapshot));
    }
    return list;
}

Answer restoreContext(AppController& controller, const QString& modeID) {
    const auto& offer = controller.context().offer();
    if (modeID.isEmpty() && !offer)
        return Answer::failure(u"nothing is offered"_s);
    const QString wanted = modeID.isEmpty() ? offer->mode.id : modeID;
    if (!controller.engine().mode(wanted))
        return Answer::failure(u"unknown mode '%1'"_s.arg(wanted));
    if (!controller.context().restore(wanted))
        return Answer::failure(u"nothing is remembered of %1"_s.arg(wanted));
    return QJsonValue();
}

Answer dismissContext(AppController& controller) {
    if (!controller.context().offer() && controller.context().missing().isEmpty())
        return Answer::failure(u"nothing is offered"_s);
    controller.context().dismiss();
    return QJsonValue();
}

Answer forgetContext(AppController& controller, const Request& request) {
    const QString modeID = request.arguments.value(0);
    if (request.options.contains(u"all"_s) != modeID.isEmpty())
        return Answer::failure(u"usage: "_s + usage(*command(request.command)));
    if (modeID.isEmpty()) {
        controller.context().forgetAll();
        return QJsonValue();
    }
    if (!controller.engine().mode(modeID))
        return Answer::failure(u"unknown mode '%1'"_s.arg(modeID));
    if (!controller.context().forget(modeID))
        return Answer::failure(u"nothing is remembered of %1"_s.arg(modeID));
    return QJsonValue();
}

} // namespace fendrel::control
