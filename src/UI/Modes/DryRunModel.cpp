#include "UI/Modes/DryRunModel.h"

#include "App/AppController.h"
#include "UI/MomentText.h"
#include "UI/SyncRows.h"

namespace fendrel {

DryRunModel::DryRunModel(AppController& controller, AppIcons& icons) : m_controller(controller), m_icons(icons) {
    connect(&controller.engine(), &ModeEngine::changed, this, &DryRunModel::refresh);
    connect(&controller.classifier(), &Classifier::changed, this, &DryRunModel::refresh);
    connect(&controller.seen(), &SeenApps::changed, this, &DryRunModel::refresh);
    connect(&controller.workspace(), &Workspace::installedChanged, this, [this] {
        refresh();
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0), index(static_cast<int>(m_rows.size()) - 1));
    });
    refresh();
}

int DryRunModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

void DryRunModel::refresh() {
    QList<Row> wanted;
    for (const SeenApp& app : m_controller.seen().recent())
        wanted.append(row(app));
    RowSync<DryRunModel, Row>::sync(*this, m_rows, wanted);
}

DryRunModel::Row DryRunModel::row(const SeenApp& app) const {
    Classifier& classifier = m_controller.classifier();
    const ModeEngine& engine = m_controller.engine();
    Row row{.id = app.bundleID,
            .name = m_controller.workspace().displayName(app.bundleID),
            .seen = momentText(app.lastSeen, m_controller.platform().clock->now())};
    if (engine.catalog().sharedApps.contains(app.bundleID)) {
        row.place = tr("Every mode");
        row.reason = tr("Belongs everywhere");
        return row;
    }
    const AppSubject subject{.bundleID = app.bundleID, .name = row.name};
    const auto listed = classifier.ruleVerdict(subject);
    const auto verdict = listed ? listed : classifier.cachedVerdict(subject);
    if (!verdict) {
        row.isUndecided = true;
        row.place = tr("Undecided");
        row.reason = classifier.isModelAvailable() ? tr("The model is asked when you use it") : tr("Is let be");
        return row;
    }
    row.reason = listed                             ? tr("Is on its list")
                 : verdict->source == Source::model ? tr("Learned earlier")
                                                    : tr("You said so");
    const Mode* mode = verdict->modeID ? engine.mode(*verdict->modeID) : nullptr;
    if (!mode) {
        row.place = tr("No mode");
        return row;
    }
    row.place = mode->name;
    row.symbol = mode->symbol;
    row.tint = color(mode->tint);
    return row;
}

} // namespace fendrel
