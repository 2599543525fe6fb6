#include "UI/Dock/MinimizedModel.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/SyncRows.h"

namespace fendrel {

MinimizedModel::MinimizedModel(AppController& controller, AppIcons& icons) : m_controller(controller), m_icons(icons) {
    connect(&controller.minimized(), &MinimizedWindows::changed, this, &MinimizedModel::refresh);
    refresh();
}

int MinimizedModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

void MinimizedModel::refresh() {
    QList<Row> wanted;
    for (const MinimizedWindows::Item& item : m_controller.minimized().items()) {
        const QString app = m_controller.workspace().displayName(item.bundleID);
        wanted.append({.id = QString::number(item.id.value),
                       .window = item.id.value,
                       .title = item.title.isEmpty() ? app : item.title,
                       .app = app,
                       .icon = m_icons.source(item.bundleID)});
    }
    RowSync<MinimizedModel, Row>::sync(*this, m_rows, wanted);
}

} // namespace fendrel
