#include "UI/Dock/DockAppsModel.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/SyncRows.h"

#include <algorithm>

namespace fendrel {

DockAppsModel::DockAppsModel(AppController& controller, AppIcons& icons) : m_controller(controller), m_icons(icons) {
    connect(&controller.engine(), &ModeEngine::changed, this, &DockAppsModel::refresh);
    connect(&controller.workspace(), &Workspace::runningChanged, this, &DockAppsModel::refresh);
    connect(&controller.titles(), &WindowTitles::changed, this, &DockAppsModel::refresh);
    connect(&controller.workspace(), &Workspace::installedChanged, this, &DockAppsModel::refresh);
    connect(&controller, &AppController::windowsChanged, this, &DockAppsModel::refresh);
    connect(&controller, &AppController::badgesChanged, this, &DockAppsModel::refresh);
    refresh();
}

int DockAppsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QString DockAppsModel::badgeText(qint64 count) {
    return count <= 0 ? QString() : count > 99 ? tr("99+") : QString::number(count);
}

void DockAppsModel::carry(const QString& bundleID, int place) {
    if (m_carried == bundleID && m_place == place)
        return;
    m_carried = bundleID;
    m_place = place;
    refresh();
}

void DockAppsModel::letGo() {
    carry({}, AtHome);
}

QString DockAppsModel::neighbour(const QString& bundleID, int step) const {
    const auto at = std::ranges::find(m_rows, bundleID, &Row::id);
    const qsizetype wanted = at - m_rows.begin() + step;
    return at == m_rows.end() || wanted < 0 || wanted >= m_modeCount ? QString() : m_rows[wanted].id;
}

bool DockAppsModel::isInMode(const QString& bundleID) const {
    return m_controller.engine().current().apps.contains(bundleID);
}

QString DockAppsModel::bundleID(int row) const {
    return row < 0 || row >= m_rows.size() ? QString() : m_rows[row].id;
}

QString DockAppsModel::icon(const QString& bundleID) const {
    return m_icons.source(bundleID);
}

QString DockAppsModel::name(const QString& bundleID) const {
    return m_controller.workspace().displayName(bundleID);
}

int DockAppsModel::find(const QString& letters, int from) const {
    const int count = rowCount();
    for (int step = 1; step <= count; ++step) {
        const int index = (from + step) % count;
        if (m_rows[index].name.startsWith(letters, Qt::CaseInsensitive))
            return index;
    }
    return -1;
}

/// Of the mode's applications those that are to be had here, with the carried one where it is now.
QStringList DockAppsModel::shownApps() const {
    const Workspace& workspace = m_controller.workspace();
    QStringList shown;
    for (const QString& bundleID : m_controller.engine().current().apps) {
        if (workspace.running().contains(bundleID) || workspace.url(bundleID))
            shown.append(bundleID);
    }
    if (m_carried.isEmpty() || m_place == AtHome)
        return shown;
    shown.removeAll(m_carried);
    if (m_place != Nowhere)
        shown.insert(std::clamp<qsizetype>(m_place, 0, shown.size()), m_carried);
    return shown;
}

DockAppsModel::Row DockAppsModel::row(const QString& bundleID) const {
    const Workspace& workspace = m_controller.workspace();
    const auto& front = m_controller.titles().front();
    const auto windows = workspace.windows(bundleID);
    const AppBadge badge = m_controller.platform().badges->badge(bundleID);
    return {
        .id = bundleID,
        .name = workspace.displayName(bundleID),
        .icon = m_icons.source(bundleID),
        .isRunning = workspace.running().contains(bundleID),
        .isFront = front && front->bundleID == bundleID,
        .isCarried = bundleID == m_carried,
        .isUrgent = workspace.wantsAttention(bundleID),
        .isHidden = !windows.isEmpty() && std::ranges::all_of(windows, &WindowInfo::isHidden),
        .windowCount = static_cast<int>(windows.size()),
        .badgeCount = std::max<qint64>(0, badge.count.value_or(0)),
        .progress = badge.progress ? std::clamp(*badge.progress, 0.0, 1.0) : -1,
    };
}

void DockAppsModel::refresh() {
    const QStringList shown = shownApps();
    QList<Row> wanted;
    for (const QString& bundleID : shown) {
        wanted.append(row(bundleID));
        wanted.last().isInMode = true;
    }
    for (const QString& bundleID : m_controller.workspace().runningApps()) {
        if (shown.contains(bundleID) || (bundleID == m_carried && m_place == Nowhere))
            continue;
        wanted.append(row(bundleID));
        wanted.last().startsOthers = !shown.isEmpty() && wanted.size() == shown.size() + 1;
    }
    RowSync<DockAppsModel, Row>::sync(*this, m_rows, wanted);
    if (const int count = static_cast<int>(shown.size()); count != m_modeCount) {
        m_modeCount = count;
        Q_EMIT modeCountChanged();
    }
}

} // namespace fendrel
