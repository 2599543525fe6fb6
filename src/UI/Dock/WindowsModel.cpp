#include "UI/Dock/WindowsModel.h"

#include "App/AppController.h"
#include "UI/SyncRows.h"

#include <algorithm>

namespace fendrel {

WindowsModel::WindowsModel(AppController& controller) : m_controller(controller) {
    connect(&controller, &AppController::windowsChanged, this, &WindowsModel::refresh);
}

int WindowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
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
