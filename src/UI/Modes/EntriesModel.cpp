#include "UI/Modes/EntriesModel.h"

#include "UI/SyncRows.h"

namespace fendrel {

EntriesModel::EntriesModel(std::function<QString(const QString& id)> icon) : m_icon(std::move(icon)) {}

int EntriesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

void EntriesModel::show(const QList<Row>& rows) {
    RowSync<EntriesModel, Row>::sync(*this, m_rows, rows);
}

void EntriesModel::refreshIcons() {
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(static_cast<int>(m_rows.size()) - 1));
}

} // namespace fendrel
