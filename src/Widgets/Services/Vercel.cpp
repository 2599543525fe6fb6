#include "Widgets/Services/Vercel.h"

#include "Widgets/Exchange.h"
#include "Widgets/Json.h"

#include <QJsonArray>

namespace fendrel::vercel {

using namespace Qt::StringLiterals;

State state(const QString& name) {
    if (name == "READY"_L1)
        return State::ready;
    if (name == "ERROR"_L1)
        return State::error;
    if (name == "CANCELED"_L1)
        return State::canceled;
    if (name == "QUEUED"_L1 || name == "INITIALIZING"_L1)
        return State::queued;
    return State::building;
}

HttpRequest deploysRequest(const QString& key) {
    return {.url = QUrl(u"https://api.vercel.com/v6/deployments?limit=10"_s), .headers = {bearer(key)}};
}

Fetched<QList<Deploy>> readDeploys(const HttpResponse& response) {
    if (const auto refused = refusal(response, u"Vercel"_s))
        return Fetched<QList<Deploy>>::failure(*refused);
    const auto body = json::object(response.body);
    if (!body || !body->value("deployments"_L1).isArray())
        return Fetched<QList<Deploy>>::failure(FetchFailure::undecodable());
    QList<Deploy> deploys;
    for (const auto& each : body->value("deployments"_L1).toArray()) {
        const auto item = each.toObject();
        const auto created = json::unixTime(item["created"_L1], std::chrono::milliseconds(1));
        const QString project = item["name"_L1].toString();
        if (project.isEmpty() || !created)
            continue;
        const QString readyState = item["readyState"_L1].toString(); // always there, where `state` is not
        deploys.append({.project = project,
                        .state = state(readyState.isEmpty() ? item["state"_L1].toString() : readyState),
                        .target = item["target"_L1].toString(),
                        .created = *created,
                        .inspector = json::webAddress(item["inspectorUrl"_L1]),
                        .commitMessage = item["meta"_L1]["githubCommitMessage"_L1].toString()});
    }
    return deploys;
}

Handle fetch(HttpClient& http, const QString& key, FetchDone<QList<Deploy>> done) {
    return exchange<QList<Deploy>>(http, deploysRequest(key), readDeploys, std::move(done));
}

} // namespace fendrel::vercel
