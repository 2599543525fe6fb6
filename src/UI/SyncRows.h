#pragma once

#include <QAbstractItemModel>
#include <QList>

#include <algorithm>

namespace fendrel {

/// Brings the rows of a list model to a new state step by step, so that views see what was added, removed and moved
/// instead of a new list. `Row` has a member `id` that names it and is compared as a whole to see what changed.
template<class Model, class Row>
class RowSync {
public:
    static void sync(Model& model, QList<Row>& rows, const QList<Row>& wanted) {
        for (qsizetype index = rows.size() - 1; index >= 0; --index) {
            if (position(wanted, rows[index].id, 0) < 0) {
                model.beginRemoveRows({}, static_cast<int>(index), static_cast<int>(index));
                rows.removeAt(index);
                model.endRemoveRows();
            }
        }
        for (qsizetype index = 0; index < wanted.size(); ++index) {
            const qsizetype old = position(rows, wanted[index].id, index);
            const int row = static_cast<int>(index);
            if (old < 0) {
                model.beginInsertRows({}, row, row);
                rows.insert(index, wanted[index]);
                model.endInsertRows();
                continue;
            }
            if (old != index) {
                model.beginMoveRows({}, static_cast<int>(old), static_cast<int>(old), {}, row);
                rows.move(old, index);
                model.endMoveRows();
            }
            if (!(rows[index] == wanted[index])) {
                rows[index] = wanted[index];
                Q_EMIT model.dataChanged(model.index(row), model.index(row));
            }
        }
    }

private:
    static qsizetype position(const QList<Row>& rows, const QString& id, qsizetype from) {
        const auto found = std::find_if(rows.begin() + from, rows.end(), [&](const Row& row) { return row.id == id; });
        return found == rows.end() ? -1 : found - rows.begin();
    }
};

} // namespace fendrel
