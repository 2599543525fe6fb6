#pragma once

#include "Platform/Linux/ModelServer/LocalHttp.h"
#include "Platform/Linux/ModelServer/ModelServerList.h"

namespace fendrel {

/// A model server that is ready to answer.
struct FoundModelServer {
    LocalHttpAddress address{}; ///< with the one endpoint that answered
    ModelProtocol protocol{};
    QString model{};
};

/// Looks once for a model server at one address after the other. The first that is ready is taken. Destroying it ends
/// the search without a callback.
class ModelServerSearch {
public:
    using Found = Result<FoundModelServer, QString>; ///< or why there is none, for the user
    using Done = std::function<void(const Found&)>;

    /// `model` may be empty: the server's first. `done` never comes from inside; it may destroy the search.
    ModelServerSearch(LocalHttp& http, const QList<LocalHttpAddress>& addresses, QString model, Done done);

private:
    /// What was in the way, from the least to the most worth telling.
    enum class Miss { none, silence, stranger, noModel, loading };

    struct Candidate {
        QString name{};
        LocalEndpoint endpoint{};
    };

    const Candidate& candidate() const { return m_candidates[m_current]; }
    void get(const QByteArray& path, std::function<void(int status, const QByteArray& body)> answered);
    void tryCurrent();
    void askWhetherOllama(const QByteArray& models);
    void askOllama(const QSet<QString>& loaded);
    void askWhetherReady(const QByteArray& models);
    void take(ModelProtocol protocol, const QList<ServedModel>& models);
    void miss(Miss kind, const QString& reason);

    LocalHttp& m_http;
    QList<Candidate> m_candidates;
    QString m_model;
    Done m_done;
    qsizetype m_current = 0;
    Miss m_worst;
    QString m_reason;
    Handle m_request;
};

} // namespace fendrel
