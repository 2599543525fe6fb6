#include "UI/Modes/ModeListModel.h"

#include "App/AppController.h"
#include "UI/SyncRows.h"

#include <algorithm>

namespace fendrel {

namespace {
enum Role {
    modeIDRole = Qt::UserRole + 1,
    nameRole,
    symbolRole,
    tintRole,
    shortcutRole,
    isCurrentRole,
    appCountRole,
    siteCountRole
};
}

ModeListModel::ModeListModel(AppController& controller) : m_controller(controller) {
    connect(&controller.engine(), &ModeEngine::changed, this, &ModeListModel::refresh);
    connect(&controller.preferences(), &Preferences::changed, this, &ModeListModel::refresh);
    refresh();
}

int ModeListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ModeListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case modeIDRole:
        return row.id;
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case symbolRole:
        return row.symbol;
    case tintRole:
        return row.tint;
    case shortcutRole:
        return row.shortcut;
    case isCurrentRole:
        return row.isCurrent;
    case appCountRole:
        return row.appCount;
    case siteCountRole:
        return row.siteCount;
    default:
        return {};
    }
}

QHash<int, QByteArray> ModeListModel::roleNames() const {
    return {{modeIDRole, "modeID"},     {nameRole, "name"},          {symbolRole, "symbol"},
            {tintRole, "tint"},         {shortcutRole, "shortcut"},  {isCurrentRole, "isCurrent"},
            {appCountRole, "appCount"}, {siteCountRole, "siteCount"}};
}

int ModeListModel::position(const QString& modeID) const {
    const auto found = std::ranges::find(m_rows, modeID, &Row::id);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

void ModeListModel::refresh() {
    const ModeEngine& engine = m_controller.engine();
    QList<Row> wanted;
    for (const Mode& mode : engine.modes()) {
        const int position = static_cast<int>(wanted.size());
        wanted.append(Row{.id = mode.id,
                          .name = mode.name,
                          .symbol = mode.symbol,
                          .tint = color(mode.tint),
                          .shortcut = m_controller.preferences().modeShortcut(position).value_or(QString()),
                          .isCurrent = mode.id == engine.current().id,
                          .appCount = static_cast<int>(mode.apps.size()),
                          .siteCount = static_cast<int>(mode.sites.size())});
    }
    RowSync<ModeListModel, Row>::sync(*this, m_rows, wanted);
}

} // namespace fendrel
