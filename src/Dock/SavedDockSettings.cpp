#include "Dock/SavedDockSettings.h"

#include <QJsonDocument>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString autohideKey = u"autohide"_s;
const QString delayKey = u"delay"_s;
const QString dockKey = u"dock"_s;
const QString detailsKey = u"details"_s;

} // namespace

bool isHiding(const SystemDockSettings& settings) {
    return settings.autohide == true && settings.delay == hidingDelay;
}

SystemDockSettings hidingSettings(const QString& dock) {
    return {.autohide = true, .delay = hidingDelay, .dock = dock};
}

QByteArray toJson(const SystemDockSettings& settings) {
    QJsonObject record;
    if (settings.autohide)
        record.insert(autohideKey, *settings.autohide);
    if (settings.delay)
        record.insert(delayKey, *settings.delay);
    if (!settings.dock.isEmpty())
        record.insert(dockKey, settings.dock);
    if (!settings.details.isEmpty())
        record.insert(detailsKey, settings.details);
    return QJsonDocument(record).toJson(QJsonDocument::Compact);
}

std::optional<SystemDockSettings> systemDockSettingsFromJson(const QByteArray& json) {
    const auto document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return {};
    const auto fits = [&](const QString& key, QJsonValue::Type type) {
        return document[key].isUndefined() || document[key].type() == type;
    };
    if (!fits(autohideKey, QJsonValue::Bool) || !fits(delayKey, QJsonValue::Double) ||
        !fits(dockKey, QJsonValue::String) || !fits(detailsKey, QJsonValue::Object))
        return {};
    SystemDockSettings settings{.dock = document[dockKey].toString(), .details = document[detailsKey].toObject()};
    if (!document[autohideKey].isUndefined())
        settings.autohide = document[autohideKey].toBool();
    if (!document[delayKey].isUndefined())
        settings.delay = document[delayKey].toDouble();
    return settings;
}

} // namespace fendrel
