#include "Platform/Linux/Docks/DockSetting.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

bool isHiding(const DockSetting& setting) {
    return setting.now == setting.hiding;
}

} // namespace

SystemDockSettings settingsOf(const QString& dock, const QList<DockSetting>& now) {
    SystemDockSettings settings{.dock = dock};
    for (const DockSetting& setting : now)
        settings.details.insert(setting.name, setting.isSet ? QJsonValue(setting.now) : QJsonValue());
    if (!now.isEmpty() && std::ranges::all_of(now, isHiding)) {
        settings.autohide = true;
        settings.delay = hidingDelay;
    }
    return settings;
}

DockChanges changesTo(const SystemDockSettings& wanted, const QList<DockSetting>& now) {
    const bool isToHide = wanted.autohide == true && wanted.delay == hidingDelay;
    DockChanges changes;
    for (const DockSetting& setting : now) {
        if (isToHide) {
            if (!isHiding(setting))
                changes.insert(setting.name, setting.hiding);
        } else if (isHiding(setting) && setting.isSet) {
            const QJsonValue before = wanted.details.value(setting.name);
            if (!before.isString())
                changes.insert(setting.name, std::nullopt);
            else if (before.toString() != setting.now)
                changes.insert(setting.name, before.toString());
        }
    }
    return changes;
}

std::optional<Qt::Edge> dockEdge(const QString& name) {
    static const QMap<QString, Qt::Edge> edges{
        {u"bottom"_s, Qt::BottomEdge}, {u"left"_s, Qt::LeftEdge}, {u"right"_s, Qt::RightEdge}};
    const auto edge = edges.constFind(name.toLower());
    return edge == edges.cend() ? std::nullopt : std::optional(*edge);
}

} // namespace fendrel
