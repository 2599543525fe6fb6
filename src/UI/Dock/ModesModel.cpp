#include "UI/Dock/ModesModel.h"

#include "App/AppController.h"
#include "UI/SyncRows.h"

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {
enum Role {
    modeIDRole = Qt::UserRole + 1,
    nameRole,
    symbolRole,
    tintRole,
    isCurrentRole,
    isPendingRole,
    heldCountRole
};
}

ModesModel::ModesModel(AppController& controller) : m_controller(controller) {
    connect(&controller.engine(), &ModeEngine::changed, this, &ModesModel::refresh);
    connect(&controller.messages(), &HeldMessages::changed, this, &ModesModel::refresh);
    refresh();
}

int ModesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ModesModel::data(const QModelIndex& index, int role) const {
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
    case isCurrentRole:
        return row.isCurrent;
    case isPendingRole:
        return row.isPending;
    case heldCountRole:
        return row.heldCount;
    default:
        return {};
    }
}

QHash<int, QByteArray> ModesModel::roleNames() const {
    return {{modeIDRole, "modeID"},       {nameRole, "name"},           {symbolRole, "symbol"},      {tintRole, "tint"},
            {isCurrentRole, "isCurrent"}, {isPendingRole, "isPending"}, {heldCountRole, "heldCount"}};
}

QVariantList ModesModel::menuEntries(const QString& checkedID) const {
    QVariantList entries;
    for (const Row& row : m_rows) {
        entries.append(QVariantMap{{u"text"_s, row.name},
                                   {u"value"_s, row.id},
                                   {u"symbol"_s, row.symbol},
                                   {u"tint"_s, row.tint},
                                   {u"isChecked"_s, row.id == checkedID}});
    }
    return entries;
}

void ModesModel::refresh() {
    const ModeEngine& engine = m_controller.engine();
    QList<Row> wanted;
    for (const Mode& mode : engine.modes()) {
        wanted.append(Row{.id = mode.id,
                          .name = mode.name,
                          .symbol = mode.symbol,
                          .tint = color(mode.tint),
                          .isCurrent = mode.id == engine.current().id,
                          .isPending = engine.pending() && mode.id == engine.pending()->target.id,
                          .heldCount = static_cast<int>(m_controller.messages().count(mode))});
    }
    RowSync<ModesModel, Row>::sync(*this, m_rows, wanted);
}

} // namespace fendrel
