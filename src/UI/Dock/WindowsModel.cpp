#include "UI/Dock/WindowsModel.h"

#include "App/AppController.h"
#include "UI/SyncRows.h"

#include <algorithm>

namespace fendrel {

namespace {
enum Role { windowRole = Qt::UserRole + 1, titleRole, isMinimizedRole, isFrontRole };
}

WindowsModel::WindowsModel(AppController& controller) : m_controller(controller) {
    connect(&controller, &AppController::windowsChanged, this, &WindowsModel::refresh);
}

int WindowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant WindowsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case windowRole:
        return row.window;
    case Qt::DisplayRole:
    case titleRole:
        return row.title;
    case isMinimizedRole:
        return row.isMinimized;
    case isFrontRole:
        return row.isFront;
    default:
        return {};
    }
}

QHash<int, QByteArray> WindowsModel::roleNames() const {
    return {{windowRole, "windowID"}, {titleRole, "title"}, {isMinimizedRole, "isMinimized"}, {isFrontRole, "isFront"}};
}

void WindowsModel::setBundleID(const QString& bundleID) {
    if (m_bundleID == bundleID)
        return;
    m_bundleID = bundleID;
    refresh();
    Q_EMIT bundleIDChanged();
}

void WindowsModel::refresh() {
    QList<Row> wanted;
    if (!m_bundleID.isEmpty()) {
        const auto front = m_controller.titles().window();
        for (const WindowInfo& window : m_controller.workspace().windows(m_bundleID))
            wanted.append({.id = QString::number(window.id.value),
                           .window = window.id.value,
                           .title = window.title,
                           .isMinimized = window.isMinimized,
                           .isFront = front == window.id});
        std::ranges::sort(wanted, {}, &Row::window);
    }
    RowSync<WindowsModel, Row>::sync(*this, m_rows, wanted);
}

} // namespace fendrel
