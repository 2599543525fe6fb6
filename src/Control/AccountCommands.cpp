#include "Control/AccountCommands.h"

#include "Base/EnumNames.h"
#include "Widgets/WidgetAccounts.h"

#include <QJsonObject>

#include <memory>

namespace fendrel::control {

using namespace Qt::StringLiterals;

namespace {

using Answer = CommandHandlers::Answer;
using Answered = CommandHandlers::Answered;

QString text(WidgetAccounts::Problem problem) {
    switch (problem) {
    case WidgetAccounts::Problem::missing:
        return u"this desktop has no keyring"_s;
    case WidgetAccounts::Problem::locked:
        return u"the keyring is locked"_s;
    case WidgetAccounts::Problem::failed:
        return u"the keyring does not work"_s;
    }
    return {};
}

Answer states(const WidgetAccounts& accounts) {
    QJsonObject all;
    for (const auto& [service, name, keyAddress] : WidgetAccounts::all()) {
        const auto problem = accounts.problem(service);
        all.insert(enumName(service), accounts.connected().contains(service) ? u"connected"_s
                                      : problem                              ? text(*problem)
                                                                             : u"not connected"_s);
    }
    return QJsonValue(all);
}

/// Runs `ask` with the service that the request names, and answers with how it went. What was asked is done all the
/// same when the handle is dropped.
Handle change(const Request& request, const Answered& answered,
              const std::function<void(WidgetAccounts::Service, SecretStore::Done)>& ask) {
    const auto service = enumValue<WidgetAccounts::Service>(request.arguments.value(0));
    if (!service) {
        QStringList known;
        for (const auto& each : WidgetAccounts::all())
            known.append(enumName(each.service));
        // What was typed is not repeated: it may be a key.
        answered(Answer::failure(u"unknown service: one of %1 is expected"_s.arg(known.join(u", "))));
        return {};
    }
    const auto isWanted = std::make_shared<bool>(true);
    ask(*service, [isWanted, answered](std::optional<WidgetAccounts::Problem> problem) {
        if (*isWanted)
            answered(problem ? Answer::failure(text(*problem)) : Answer(QJsonValue()));
    });
    return Handle([isWanted] { *isWanted = false; });
}

} // namespace

Handle listAccounts(WidgetAccounts& accounts, const Answered& answered) {
    const auto context = std::make_shared<QObject>();
    QObject::connect(&accounts, &WidgetAccounts::wasRead, context.get(),
                     [&accounts, answered] { answered(states(accounts)); });
    accounts.readAgain();
    return Handle([context] {}); // which is what keeps it
}

Handle setAccount(WidgetAccounts& accounts, const Request& request, const Answered& answered) {
    const QString key = request.options.value(secretOption);
    return change(request, answered, [&](WidgetAccounts::Service service, const SecretStore::Done& done) {
        if (!accounts.save(key, service, done))
            answered(Answer::failure(u"the key is empty"_s));
    });
}

Handle removeAccount(WidgetAccounts& accounts, const Request& request, const Answered& answered) {
    return change(request, answered, [&](WidgetAccounts::Service service, const SecretStore::Done& done) {
        accounts.remove(service, done);
    });
}

} // namespace fendrel::control
