#pragma once

#include "Base/WallTime.h"
#include "Widgets/FetchFailure.h"

#include <QList>
#include <QObject>
#include <QUrl>

namespace fendrel::vercel {
Q_NAMESPACE

/// In the order in which the card counts them.
enum class State { ready, building, error, canceled, queued };
Q_ENUM_NS(State)

struct Deploy {
    QString project{};
    State state{};
    QString target{}; ///< "production", "preview"; may be empty
    WallTime created{};
    QUrl inspector{}; ///< may be empty
    QString commitMessage{};
    bool operator==(const Deploy&) const = default;
};

State state(const QString& name);

// https://vercel.com/docs/rest-api, the list of deployments
HttpRequest deploysRequest(const QString& key);
Fetched<QList<Deploy>> readDeploys(const HttpResponse& response); ///< the newest first

Handle fetch(HttpClient& http, const QString& key, FetchDone<QList<Deploy>> done);

} // namespace fendrel::vercel
