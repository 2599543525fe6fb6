#include "Widgets/Services/GitHub.h"

#include "Widgets/Exchange.h"
#include "Widgets/Json.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace fendrel::github {

using namespace Qt::StringLiterals;

namespace {

const QString query = uR"(query {
  viewer {
    login
    pullRequests(states: OPEN, first: 10, orderBy: {field: UPDATED_AT, direction: DESC}) {
      totalCount
      nodes { ...pr commits(last: 1) { nodes { commit { statusCheckRollup { state } } } } }
    }
  }
  search(query: "is:open is:pr review-requested:@me archived:false", type: ISSUE, first: 10) {
    issueCount
    nodes { ... on PullRequest { ...pr } }
  }
}
fragment pr on PullRequest { title url number repository { nameWithOwner } })"_s;

/// Nodes that the token may not see are null.
QList<PullRequest> pullRequests(const QJsonValue& nodes) {
    QList<PullRequest> read;
    for (const auto& node : nodes.toArray()) {
        const QUrl url = json::webAddress(node["url"_L1]);
        if (url.isEmpty())
            continue;
        const auto commit = node["commits"_L1]["nodes"_L1].toArray().at(0)["commit"_L1];
        read.append({.title = node["title"_L1].toString(),
                     .url = url,
                     .number = node["number"_L1].toInt(),
                     .repository = node["repository"_L1]["nameWithOwner"_L1].toString(),
                     .ci = ci(commit["statusCheckRollup"_L1]["state"_L1].toString())});
    }
    return read;
}

int count(const QJsonValue& value, qsizetype atLeast) {
    return std::max(value.toInt(), static_cast<int>(atLeast));
}

} // namespace

std::optional<CI> ci(const QString& rollupState) {
    if (rollupState == "SUCCESS"_L1)
        return CI::passing;
    if (rollupState == "FAILURE"_L1 || rollupState == "ERROR"_L1)
        return CI::failing;
    if (rollupState == "PENDING"_L1)
        return CI::running;
    return {};
}

std::optional<CI> Snapshot::ci() const {
    for (const CI state : {CI::failing, CI::running, CI::passing})
        if (std::ranges::find(own, std::optional(state), &PullRequest::ci) != own.end())
            return state;
    return {};
}

HttpRequest snapshotRequest(const QString& token) {
    return {.method = "POST",
            .url = QUrl(u"https://api.github.com/graphql"_s),
            .headers = {bearer(token), {"Content-Type", "application/json"}},
            .body = QJsonDocument(QJsonObject{{u"query"_s, query}}).toJson(QJsonDocument::Compact)};
}

Fetched<Snapshot> readSnapshot(const HttpResponse& response) {
    const auto failed = [](const char* text) {
        return Fetched<Snapshot>::failure(FetchFailure::told(QCoreApplication::translate("Feed", text)));
    };
    if (response.status == 401)
        return failed(QT_TRANSLATE_NOOP("Feed", "GitHub didn't accept the token"));
    if (const auto refused = answered(response, u"GitHub"_s))
        return Fetched<Snapshot>::failure(*refused);
    // When the user's hourly quota is used up the status is 200, too, and there is no data.
    const auto body = json::object(response.body);
    if (!body)
        return Fetched<Snapshot>::failure(FetchFailure::undecodable());
    const auto data = body->value("data"_L1);
    if (!data.isObject())
        return failed(QT_TRANSLATE_NOOP("Feed", "GitHub sent no data"));
    const auto own = data["viewer"_L1]["pullRequests"_L1];
    const auto search = data["search"_L1];
    if (!own.isObject() && !search.isObject())
        return failed(QT_TRANSLATE_NOOP("Feed", "GitHub sent no data"));
    Snapshot snapshot{.login = data["viewer"_L1]["login"_L1].toString(),
                      .own = pullRequests(own["nodes"_L1]),
                      .reviews = pullRequests(search["nodes"_L1])};
    snapshot.ownCount = count(own["totalCount"_L1], snapshot.own.size());
    snapshot.reviewCount = count(search["issueCount"_L1], snapshot.reviews.size());
    return snapshot;
}

Handle fetch(HttpClient& http, const QString& token, FetchDone<Snapshot> done) {
    return exchange<Snapshot>(http, snapshotRequest(token), readSnapshot, std::move(done));
}

} // namespace fendrel::github
