#include "UI/Setup/FirstRunController.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"

namespace fendrel {

using namespace Qt::StringLiterals;

FirstRunController::FirstRunController(AppController& controller, AppIcons& icons)
    : m_controller(controller), m_icons(icons) {
    connect(&controller.workspace(), &Workspace::installedChanged, this, &FirstRunController::changed);
    connect(&controller.preferences(), &Preferences::changed, this, &FirstRunController::changed);
}

QVariantList FirstRunController::templates() const {
    const ModeEngine& engine = m_controller.engine();
    QVariantList list;
    for (const Mode& modeTemplate : engine.catalog().templates) {
        const Mode mode = engine.seeded(modeTemplate);
        QStringList names;
        QStringList icons;
        for (const QString& bundleID : mode.apps) {
            names.append(m_controller.workspace().displayName(bundleID));
            icons.append(m_icons.source(bundleID));
        }
        list.append(QVariantMap{{u"modeID"_s, mode.id},
                                {u"name"_s, mode.name},
                                {u"symbol"_s, mode.symbol},
                                {u"tint"_s, color(mode.tint)},
                                {u"apps"_s, names},
                                {u"icons"_s, icons}});
    }
    return list;
}

QStringList FirstRunController::starters() const {
    QStringList ids;
    for (const Mode& mode : m_controller.engine().catalog().starterTemplates())
        ids.append(mode.id);
    return ids;
}

bool FirstRunController::isDark() const {
    return m_controller.preferences().systemIsDark();
}

void FirstRunController::finish(const QStringList& modeIDs) {
    m_controller.finishOnboarding(modeIDs);
}

} // namespace fendrel
