#include "UI/Modes/EntriesModel.h"

#include "UI/SyncRows.h"

namespace fendrel {

namespace {
enum Role { entryIDRole = Qt::UserRole + 1, nameRole, noteRole, iconRole };
}

EntriesModel::EntriesModel(std::function<QString(const QString& id)> icon) : m_icon(std::move(icon)) {}

int EntriesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant EntriesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case entryIDRole:
        return row.id;
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case noteRole:
        return row.note;
    case iconRole:
        return m_icon(row.id);
    default:
        return {};
    }
}

QHash<int, QByteArray> EntriesModel::roleNames() const {
    return {{entryIDRole, "entryID"}, {nameRole, "name"}, {noteRole, "note"}, {iconRole, "icon"}};
}

void EntriesModel::show(const QList<Row>& rows) {
    RowSync<EntriesModel, Row>::sync(*this, m_rows, rows);
}

void EntriesModel::refreshIcons() {
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_rows.size()) - 1), {iconRole});
}

} // namespace fendrel
