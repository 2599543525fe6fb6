#include "Control/WidgetCommands.h"

#include "App/AppController.h"
#include "Control/WidgetJson.h"

#include <QJsonArray>
#include <QJsonObject>

#include <memory>

namespace fendrel::control {

using namespace Qt::StringLiterals;

namespace {

using Answer = CommandHandlers::Answer;

QJsonObject accountsOf(DockWidget widget, const WidgetAccounts& accounts) {
    QJsonObject states;
    for (const auto service : WidgetAccounts::usedBy(widget))
        states.insert(enumName(service), accounts.connected().contains(service) ? u"connected"_s : u"not connected"_s);
    return states;
}

QJsonArray kinds(AppController& controller) {
    std::map<DockWidget, QJsonObject> modes; // the size in each mode
    for (const Mode& mode : controller.engine().modes())
        for (const WidgetItem& item : controller.widgetSizes().items(mode))
            modes[item.widget].insert(mode.id, enumName(item.size));
    QJsonArray list;
    for (const DockWidgetKind& kind : dockWidgetKinds()) {
        QJsonArray sizes;
        for (const WidgetSize size : kind.sizes)
            sizes.append(enumName(size));
        list.append(QJsonObject{{u"id"_s, kind.id()},
                                {u"title"_s, kind.title()},
                                {u"category"_s, title(kind.category)},
                                {u"sizes"_s, sizes},
                                {u"hasCard"_s, controller.widgets().feed(kind.widget) != nullptr},
                                {u"modes"_s, modes[kind.widget]},
                                {u"accounts"_s, accountsOf(kind.widget, controller.accounts())}});
    }
    return list;
}

} // namespace

Handle listWidgets(AppController& controller, const CommandHandlers::Answered& answered) {
    const auto context = std::make_shared<QObject>();
    QObject::connect(&controller.accounts(), &WidgetAccounts::wasRead, context.get(),
                     [&controller, answered] { answered(QJsonValue(kinds(controller))); });
    controller.accounts().readAgain();
    return Handle([context] {}); // which is what keeps it
}

Answer showWidget(AppController& controller, const QString& name) {
    const auto widget = enumValue<DockWidget>(name);
    if (!widget)
        return Answer::failure(u"unknown widget '%1'; see fendrelctl widgets"_s.arg(name));
    const WidgetFeed* feed = controller.widgets().feed(*widget);
    if (!feed)
        return Answer::failure(u"%1 has no data: this version has no card for it"_s.arg(name));
    const auto updated = feed->updatedAt();
    QJsonObject answer{{u"id"_s, name},
                       {u"active"_s, feed->isActive()},
                       {u"isLoading"_s, feed->isLoading()},
                       {u"error"_s, feed->error().isEmpty() ? QJsonValue() : QJsonValue(feed->error())},
                       {u"updatedAt"_s, updated ? json::text(*updated) : QJsonValue()},
                       {u"value"_s, json::value(controller.widgets(), *widget)}};
    if (const QJsonObject accounts = accountsOf(*widget, controller.accounts()); !accounts.isEmpty())
        answer.insert(u"accounts"_s, accounts);
    return QJsonValue(answer);
}

} // namespace fendrel::control
