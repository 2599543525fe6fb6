#include "Platform/Linux/ModelServer/ModelServerSearch.h"

#include <QCoreApplication>

#include <utility>

namespace fendrel {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr auto patience = 5s;
constexpr int ok = 200, stillLoading = 503;

} // namespace

ModelServerSearch::ModelServerSearch(LocalHttp& http, const QList<LocalHttpAddress>& addresses, QString model,
                                     Done done)
    : m_http(http),
      m_model(std::move(model)),
      m_done(std::move(done)),
      // Of several usual addresses nobody has to use any, and a stranger at one is no news.
      m_worst(addresses.size() > 1 ? Miss::stranger : Miss::none),
      m_reason(QCoreApplication::translate("ModelServer", "No language model server answers on this machine.")) {
    for (const LocalHttpAddress& address : addresses) {
        for (const LocalEndpoint& endpoint : address.endpoints)
            m_candidates.append({address.name, endpoint});
    }
    tryCurrent();
}

/// Status 0: nobody answered.
void ModelServerSearch::get(const QByteArray& path, std::function<void(int, const QByteArray&)> answered) {
    m_request = m_http.send({.endpoint = candidate().endpoint, .path = path, .timeout = patience},
                            [answered = std::move(answered)](const LocalHttp::Outcome& outcome) {
                                if (outcome)
                                    answered(outcome->status, outcome->body);
                                else
                                    answered(0, {});
                            });
}

void ModelServerSearch::tryCurrent() {
    // Every kind of model server has this list, and what listens at a usual port may be something else altogether: one
    // request is enough to find out.
    get("/v1/models", [this](int status, const QByteArray& body) {
        if (status == 0)
            miss(Miss::silence,
                 QCoreApplication::translate("ModelServer", "No model server answers at %1.").arg(candidate().name));
        else if (status == stillLoading)
            miss(Miss::loading,
                 QCoreApplication::translate("ModelServer", "The model server at %1 is still loading its model.")
                     .arg(candidate().name));
        else if (status != ok || !ModelServerList::chatCompletions(body))
            miss(Miss::stranger, QCoreApplication::translate("ModelServer", "What answers at %1 is no model server.")
                                     .arg(candidate().name));
        else
            askWhetherOllama(body);
    });
}

void ModelServerSearch::askWhetherOllama(const QByteArray& models) {
    get("/api/ps", [this, models](int status, const QByteArray& body) {
        const auto loaded = ModelServerList::ollamaLoaded(body);
        if (status == ok && loaded)
            askOllama(*loaded);
        else
            askWhetherReady(models);
    });
}

void ModelServerSearch::askOllama(const QSet<QString>& loaded) {
    get("/api/tags", [this, loaded](int, const QByteArray& body) {
        take(ModelProtocol::ollama, ModelServerList::ollama(body, loaded).value_or(QList<ServedModel>()));
    });
}

void ModelServerSearch::askWhetherReady(const QByteArray& models) {
    get("/health", [this, models](int status, const QByteArray&) {
        // Not every server knows this question; those that do not are ready when they have a model.
        if (status == stillLoading)
            miss(Miss::loading,
                 QCoreApplication::translate("ModelServer", "The model server at %1 is still loading its model.")
                     .arg(candidate().name));
        else
            take(ModelProtocol::chatCompletions, ModelServerList::chatCompletions(models).value());
    });
}

void ModelServerSearch::take(ModelProtocol protocol, const QList<ServedModel>& models) {
    const ServedModel* const model = ModelServerList::pick(models, m_model);
    if (!model && m_model.isEmpty()) {
        miss(Miss::noModel, QCoreApplication::translate("ModelServer", "The model server at %1 has no model to ask.")
                                .arg(candidate().name));
    } else if (!model) {
        miss(Miss::noModel,
             QCoreApplication::translate("ModelServer", "The model server at %1 doesn't have the model “%2”.")
                 .arg(candidate().name, m_model));
    } else if (model->isElsewhere) {
        miss(Miss::noModel, QCoreApplication::translate(
                                "ModelServer", "Only a model on this machine is asked, and “%1” runs elsewhere.")
                                .arg(model->name));
    } else {
        const auto done = std::exchange(m_done, {});
        done(FoundModelServer{.address = {.name = candidate().name, .endpoints = {candidate().endpoint}},
                              .protocol = protocol,
                              .model = model->name});
    }
}

void ModelServerSearch::miss(Miss kind, const QString& reason) {
    if (kind > m_worst) {
        m_worst = kind;
        m_reason = reason;
    }
    if (++m_current < m_candidates.size()) {
        tryCurrent();
        return;
    }
    const auto done = std::exchange(m_done, {});
    done(Found::failure(m_reason));
}

} // namespace fendrel
