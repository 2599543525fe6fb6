#include "UI/Settings/WidgetGroup.h"

#include "UI/SyncRows.h"

namespace fendrel {

namespace {
enum Role {
    widgetIDRole = Qt::UserRole + 1,
    titleRole,
    detailRole,
    symbolRole,
    accentRole,
    modesRole,
    modeNamesRole,
    isChosenRole,
    needsAccountRole,
    isConnectedRole,
    accountRole
};
}

int WidgetGroup::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant WidgetGroup::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case widgetIDRole:
        return row.id;
    case Qt::DisplayRole:
    case titleRole:
        return row.title;
    case detailRole:
        return row.detail;
    case symbolRole:
        return row.symbol;
    case accentRole:
        return row.accent;
    case modesRole:
        return row.modes;
    case modeNamesRole:
        return row.modeNames;
    case isChosenRole:
        return row.isChosen;
    case needsAccountRole:
        return row.needsAccount;
    case isConnectedRole:
        return row.isConnected;
    case accountRole:
        return row.account;
    default:
        return {};
    }
}

QHash<int, QByteArray> WidgetGroup::roleNames() const {
    return {{widgetIDRole, "widgetID"},       {titleRole, "title"},       {detailRole, "detail"},
            {symbolRole, "symbol"},           {accentRole, "accent"},     {modesRole, "modes"},
            {modeNamesRole, "modeNames"},     {isChosenRole, "isChosen"}, {needsAccountRole, "needsAccount"},
            {isConnectedRole, "isConnected"}, {accountRole, "account"}};
}

void WidgetGroup::show(const QList<Row>& rows) {
    const auto before = m_rows.size();
    RowSync<WidgetGroup, Row>::sync(*this, m_rows, rows);
    if (m_rows.size() != before)
        Q_EMIT countChanged();
}

} // namespace fendrel
