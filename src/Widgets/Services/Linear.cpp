#include "Widgets/Services/Linear.h"

#include "Widgets/Exchange.h"
#include "Widgets/Json.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <tuple>

namespace fendrel::linear {

using namespace Qt::StringLiterals;

namespace {

const QString query =
    uR"(query { viewer { assignedIssues(first: 50, orderBy: updatedAt, filter: { state: { type: { nin: ["completed", "canceled"] } } }) {
  nodes { identifier title url priority dueDate state { name type } } } } })"_s;

std::optional<Issue> issue(const QJsonObject& node) {
    const Issue read{.identifier = node["identifier"_L1].toString(),
                     .title = node["title"_L1].toString(),
                     .url = json::webAddress(node["url"_L1]),
                     .priority = std::clamp(node["priority"_L1].toInt(), 0, 4),
                     .dueDate = QDate::fromString(node["dueDate"_L1].toString(), Qt::ISODate),
                     .stateName = node["state"_L1]["name"_L1].toString(),
                     .stateType = node["state"_L1]["type"_L1].toString()};
    return read.identifier.isEmpty() ? std::nullopt : std::optional(read);
}

} // namespace

bool Issue::isStarted() const {
    return stateType == "started"_L1;
}

HttpRequest issuesRequest(const QString& key, Authorization authorization) {
    const auto authorized =
        authorization == Authorization::bearer ? bearer(key) : std::pair(QByteArray("Authorization"), key.toUtf8());
    return {.method = "POST",
            .url = QUrl(u"https://api.linear.app/graphql"_s),
            .headers = {authorized, {"Content-Type", "application/json"}},
            .body = QJsonDocument(QJsonObject{{u"query"_s, query}}).toJson(QJsonDocument::Compact)};
}

Fetched<QList<Issue>> readIssues(const HttpResponse& response) {
    using Issues = Fetched<QList<Issue>>;
    if (const auto refused = refusal(response, u"Linear"_s))
        return Issues::failure(*refused);
    const auto body = json::object(response.body);
    if (!body)
        return Issues::failure(FetchFailure::undecodable());
    if (!body->value("data"_L1).isObject())
        return Issues::failure(FetchFailure::told(QCoreApplication::translate("Feed", "Linear sent no data")));
    const auto nodes = body->value("data"_L1)["viewer"_L1]["assignedIssues"_L1]["nodes"_L1];
    if (!nodes.isArray())
        return Issues::failure(FetchFailure::undecodable());
    QList<Issue> issues;
    for (const auto& node : nodes.toArray())
        if (const auto read = issue(node.toObject()))
            issues.append(*read);
    std::ranges::stable_sort(issues, {}, [](const Issue& each) {
        return std::tuple(!each.isStarted(), each.priority == 0 ? 5 : each.priority);
    });
    return issues;
}

Handle Client::fetch(const QString& key, FetchDone<QList<Issue>> done) {
    const auto send = [&http = m_http, key](Authorization authorization, HttpClient::Done answered) {
        return http.send(issuesRequest(key, authorization), std::move(answered));
    };
    const auto end = [done = std::move(done)](const Result<HttpResponse, HttpError>& outcome) {
        done(outcome ? readIssues(*outcome) : Fetched<QList<Issue>>::failure(failure(outcome.error())));
    };
    if (*m_bareKey == digest(key))
        return send(Authorization::bare, end);
    const auto request = std::make_shared<Handle>();
    *request = send(Authorization::bearer, [send, end, request, key, bareKey = m_bareKey](const auto& outcome) {
        if (!outcome || outcome->status != 400)
            return end(outcome);
        *request = send(Authorization::bare, [end, key, bareKey](const auto& again) {
            if (again && again->status == 200)
                *bareKey = digest(key);
            end(again);
        });
    });
    return lastOf(request);
}

} // namespace fendrel::linear
