#include "Platform/Linux/ModelServer/ModelServerList.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace fendrel::ModelServerList {

using namespace Qt::StringLiterals;

namespace {

std::optional<QJsonArray> listIn(const QByteArray& body, QLatin1StringView name) {
    const QJsonValue list = QJsonDocument::fromJson(body).object()[name];
    return list.isArray() ? std::optional(list.toArray()) : std::nullopt;
}

bool isNamedForChat(const QString& name) {
    return !name.contains("embed"_L1, Qt::CaseInsensitive);
}

/// People leave out the default tag, and the folder of a model that is a file.
bool isCalled(const ServedModel& model, const QString& wanted) {
    return model.name == wanted || model.name == wanted + u":latest"_s || model.name.endsWith(u'/' + wanted);
}

} // namespace

std::optional<QList<ServedModel>> chatCompletions(const QByteArray& body) {
    const auto list = listIn(body, "data"_L1);
    if (!list)
        return {};
    QList<ServedModel> models;
    for (const auto& entry : *list) {
        if (const QString name = entry.toObject()["id"_L1].toString(); !name.isEmpty())
            models.append({.name = name, .isForChat = isNamedForChat(name)});
    }
    return models;
}

std::optional<QSet<QString>> ollamaLoaded(const QByteArray& body) {
    const auto list = listIn(body, "models"_L1);
    if (!list)
        return {};
    QSet<QString> names;
    for (const auto& entry : *list)
        names.insert(entry.toObject()["name"_L1].toString());
    return names;
}

std::optional<QList<ServedModel>> ollama(const QByteArray& body, const QSet<QString>& loaded) {
    const auto list = listIn(body, "models"_L1);
    if (!list)
        return {};
    QList<ServedModel> models;
    for (const auto& entry : *list) {
        const QJsonObject model = entry.toObject();
        const QString name = model["name"_L1].toString();
        if (name.isEmpty())
            continue;
        const QString family = model["details"_L1].toObject()["family"_L1].toString();
        models.append({.name = name,
                       .isLoaded = loaded.contains(name),
                       .isElsewhere = !model["remote_host"_L1].toString().isEmpty() || name.endsWith("-cloud"_L1) ||
                                      name.endsWith(":cloud"_L1),
                       .isForChat = isNamedForChat(name) && !family.contains("bert"_L1)});
    }
    return models;
}

const ServedModel* pick(const QList<ServedModel>& models, const QString& wanted) {
    const auto first = [&models](auto fits) {
        const auto found = std::ranges::find_if(models, fits);
        return found == models.end() ? nullptr : &*found;
    };
    if (!wanted.isEmpty())
        return first([&wanted](const ServedModel& model) { return isCalled(model, wanted); });
    const auto isUsable = [](const ServedModel& model) { return model.isForChat && !model.isElsewhere; };
    const auto* loaded = first([&](const ServedModel& model) { return isUsable(model) && model.isLoaded; });
    return loaded ? loaded : first(isUsable);
}

} // namespace fendrel::ModelServerList
