#pragma once

#include "Widgets/FetchFailure.h"

#include <QList>
#include <QObject>
#include <QUrl>

#include <optional>

namespace fendrel::github {
Q_NAMESPACE

enum class CI { passing, failing, running };
Q_ENUM_NS(CI)

struct PullRequest {
    QString title{};
    QUrl url{};
    int number{};
    QString repository{}; ///< "owner/name"
    std::optional<CI> ci{};
    bool operator==(const PullRequest&) const = default;
};

struct Snapshot {
    QString login{};
    QList<PullRequest> own{};     ///< open, at most 10, the ones that changed last first
    int ownCount{};               ///< of all of them
    QList<PullRequest> reviews{}; ///< that wait for the user, at most 10
    int reviewCount{};
    /// Of the user's own: one that fails outweighs one that still runs.
    std::optional<CI> ci() const;
    bool operator==(const Snapshot&) const = default;
};

std::optional<CI> ci(const QString& rollupState);

// https://docs.github.com/graphql
HttpRequest snapshotRequest(const QString& token);
Fetched<Snapshot> readSnapshot(const HttpResponse& response);

Handle fetch(HttpClient& http, const QString& token, FetchDone<Snapshot> done);

} // namespace fendrel::github
