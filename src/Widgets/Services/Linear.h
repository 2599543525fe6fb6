#pragma once

#include "Widgets/FetchFailure.h"

#include <QDate>
#include <QList>
#include <QUrl>

#include <memory>

namespace fendrel::linear {

struct Issue {
    QString identifier{}; ///< team and number, as "ENG-12"
    QString title{};
    QUrl url{};
    int priority{}; ///< 1 urgent to 4 low; 0: none
    QDate dueDate{};
    QString stateName{};
    QString stateType{};
    bool isStarted() const;
    bool operator==(const Issue&) const = default;
};

enum class Authorization { bearer, bare };

// https://linear.app/developers/graphql
HttpRequest issuesRequest(const QString& key, Authorization authorization);
/// What is in progress first; in both groups by priority, what has none last.
Fetched<QList<Issue>> readIssues(const HttpResponse& response);

/// Keys that people make for themselves are refused with "Bearer" before them, by status 400, and taken without. It is
/// remembered while the program runs which key was taken so: its digest, not the key.
class Client {
public:
    explicit Client(HttpClient& http) : m_http(http) {}
    Handle fetch(const QString& key, FetchDone<QList<Issue>> done);

private:
    HttpClient& m_http;
    std::shared_ptr<QByteArray> m_bareKey = std::make_shared<QByteArray>();
};

} // namespace fendrel::linear
