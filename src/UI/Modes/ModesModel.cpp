#include "UI/Modes/ModesModel.h"

#include "App/AppController.h"
#include "UI/SyncRows.h"

#include <algorithm>

namespace fendrel {

ModesModel::ModesModel(AppController& controller) : m_controller(controller) {
    connect(&controller.engine(), &ModeEngine::changed, this, &ModesModel::refresh);
    connect(&controller.messages(), &HeldMessages::changed, this, &ModesModel::refresh);
    connect(&controller.hotKeys(), &HotKeyRegistry::changed, this, &ModesModel::refresh);
    refresh();
}

int ModesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariantList ModesModel::entries() const {
    QVariantList entries;
    for (const Row& row : m_rows)
        entries.append(m_roles.map(row));
    return entries;
}

int ModesModel::position(const QString& modeID) const {
    const auto found = std::ranges::find(m_rows, modeID, &Row::id);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

QString ModesModel::hotKey(int position) const {
    const auto label = m_controller.preferences().modeShortcut(position);
    return label && m_controller.hotKeys().works({HotKeyAction::Kind::switchMode, position}) ? *label : QString();
}

void ModesModel::refresh() {
    const ModeEngine& engine = m_controller.engine();
    QList<Row> wanted;
    for (const Mode& mode : engine.modes()) {
        wanted.append(Row{.id = mode.id,
                          .name = mode.name,
                          .symbol = mode.symbol,
                          .tint = color(mode.tint),
                          .hotKey = hotKey(static_cast<int>(wanted.size())),
                          .isCurrent = mode.id == engine.current().id,
                          .isPending = engine.pending() && mode.id == engine.pending()->target.id,
                          .heldCount = static_cast<int>(m_controller.messages().count(mode)),
                          .appCount = static_cast<int>(mode.apps.size()),
                          .siteCount = static_cast<int>(mode.sites.size())});
    }
    if (wanted == m_rows)
        return;
    RowSync<ModesModel, Row>::sync(*this, m_rows, wanted);
    Q_EMIT entriesChanged();
}

} // namespace fendrel
