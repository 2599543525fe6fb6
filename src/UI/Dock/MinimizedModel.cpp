#include "UI/Dock/MinimizedModel.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/SyncRows.h"

namespace fendrel {

namespace {
enum Role { windowRole = Qt::UserRole + 1, titleRole, appRole, iconRole };
}

MinimizedModel::MinimizedModel(AppController& controller, AppIcons& icons) : m_controller(controller), m_icons(icons) {
    connect(&controller.minimized(), &MinimizedWindows::changed, this, &MinimizedModel::refresh);
    refresh();
}

int MinimizedModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant MinimizedModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case windowRole:
        return row.window;
    case Qt::DisplayRole:
    case titleRole:
        return row.title;
    case appRole:
        return row.app;
    case iconRole:
        return row.icon;
    default:
        return {};
    }
}

QHash<int, QByteArray> MinimizedModel::roleNames() const {
    return {{windowRole, "windowID"}, {titleRole, "title"}, {appRole, "app"}, {iconRole, "icon"}};
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
