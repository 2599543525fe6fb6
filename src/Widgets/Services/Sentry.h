#pragma once

#include "Widgets/FetchFailure.h"

#include <QList>
#include <QUrl>

#include <optional>

namespace fendrel::sentry {

struct Issue {
    QString shortId{};
    QString title{};
    QString culprit{}; ///< may be empty
    QString level{};
    QUrl permalink{};
    qint64 events{};
    qint64 users{};
    bool operator==(const Issue&) const = default;
};

struct Snapshot {
    QList<Issue> issues{}; ///< the loudest first
    qint64 total{};        ///< of all that are unresolved
    bool operator==(const Snapshot&) const = default;
};

struct Organization {
    QString slug{};
    QUrl region{}; ///< where its issues are; empty: on the service's own host
    bool operator==(const Organization&) const = default;
};

// https://docs.sentry.io/api/
HttpRequest organizationsRequest(const QString& key);
/// The first that the key sees.
Fetched<Organization> readOrganization(const HttpResponse& response);
/// Nothing where its address is none of the service's: no key goes there.
std::optional<HttpRequest> issuesRequest(const QString& key, const Organization& organization);
Fetched<Snapshot> readIssues(const HttpResponse& response);

Handle fetch(HttpClient& http, const QString& key, FetchDone<Snapshot> done);

} // namespace fendrel::sentry
