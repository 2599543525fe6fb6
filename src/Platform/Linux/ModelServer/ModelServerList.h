#pragma once

#include "Platform/Linux/ModelServer/ModelServerRequest.h"

#include <QSet>

#include <optional>

namespace fendrel {

/// A model that a server offers.
struct ServedModel {
    QString name{};
    bool isLoaded{};    ///< answers without being read from the disk first, where the server says so
    bool isElsewhere{}; ///< the server would pass the question on to another machine
    bool isForChat{};
    bool operator==(const ServedModel&) const = default;
};

/// What model servers say of their models. Pure.
namespace ModelServerList {

/// Nothing when this is no list of models.
std::optional<QList<ServedModel>> chatCompletions(const QByteArray& body);
std::optional<QList<ServedModel>> ollama(const QByteArray& body, const QSet<QString>& loaded);
std::optional<QSet<QString>> ollamaLoaded(const QByteArray& body);

/// The model that `wanted` names; when that is empty, the first that is for chat, loaded ones before the others.
const ServedModel* pick(const QList<ServedModel>& models, const QString& wanted);

} // namespace ModelServerList

} // namespace fendrel
