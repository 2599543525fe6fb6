#include "UI/Dock/DockAppsModel.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/SyncRows.h"

namespace fendrel {

namespace {
enum Role {
    bundleIDRole = Qt::UserRole + 1,
    nameRole,
    isRunningRole,
    isFrontRole,
    isInModeRole,
    startsOthersRole,
    iconRole,
};
}

DockAppsModel::DockAppsModel(AppController& controller, AppIcons& icons) : m_controller(controller), m_icons(icons) {
    connect(&controller.engine(), &ModeEngine::changed, this, &DockAppsModel::refresh);
    connect(&controller.workspace(), &Workspace::runningChanged, this, &DockAppsModel::refresh);
    connect(&controller.titles(), &WindowTitles::changed, this, &DockAppsModel::refresh);
    connect(&controller.workspace(), &Workspace::installedChanged, this, &DockAppsModel::refresh);
    refresh();
}

int DockAppsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant DockAppsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case bundleIDRole:
        return row.id;
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case isRunningRole:
        return row.isRunning;
    case isFrontRole:
        return row.isFront;
    case isInModeRole:
        return row.isInMode;
    case startsOthersRole:
        return row.startsOthers;
    case iconRole:
        return row.icon;
    default:
        return {};
    }
}

QHash<int, QByteArray> DockAppsModel::roleNames() const {
    return {{bundleIDRole, "bundleID"}, {nameRole, "name"},         {isRunningRole, "isRunning"},
            {isFrontRole, "isFront"},   {isInModeRole, "isInMode"}, {startsOthersRole, "startsOthers"},
            {iconRole, "icon"}};
}

void DockAppsModel::refresh() {
    const Workspace& workspace = m_controller.workspace();
    const QStringList& modeApps = m_controller.engine().current().apps;
    const auto& front = m_controller.titles().front();
    QList<Row> wanted;
    const auto append = [&](const QString& bundleID, bool isInMode, bool startsOthers) {
        wanted.append(Row{
            .id = bundleID,
            .name = workspace.displayName(bundleID),
            .icon = m_icons.source(bundleID),
            .isRunning = workspace.running().contains(bundleID),
            .isFront = front && front->bundleID == bundleID,
            .isInMode = isInMode,
            .startsOthers = startsOthers,
        });
    };
    for (const QString& bundleID : modeApps) {
        if (workspace.running().contains(bundleID) || workspace.url(bundleID))
            append(bundleID, true, false);
    }
    const qsizetype inMode = wanted.size();
    for (const QString& bundleID : workspace.runningApps()) {
        if (!modeApps.contains(bundleID))
            append(bundleID, false, inMode > 0 && wanted.size() == inMode);
    }
    RowSync<DockAppsModel, Row>::sync(*this, m_rows, wanted);
}

} // namespace fendrel
