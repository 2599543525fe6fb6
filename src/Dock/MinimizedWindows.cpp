#include "Dock/MinimizedWindows.h"

#include "App/Workspace.h"

#include <algorithm>
#include <utility>

namespace fendrel {

void MinimizedWindows::setOn(bool on) {
    if (std::exchange(m_isOn, on) != on)
        refresh();
}

void MinimizedWindows::refresh() {
    QList<Item> now;
    if (m_isOn) {
        for (const QString& bundleID : m_workspace.runningApps()) {
            for (const WindowInfo& window : m_workspace.windows(bundleID)) {
                // An application that was hidden comes back as a whole, from its own button.
                if (window.isMinimized && !window.isHidden)
                    now.append({.id = window.id, .bundleID = bundleID, .title = window.title});
            }
        }
    }
    const auto place = [this](const Item& item) {
        const auto before = std::ranges::find(std::as_const(m_items), item.id, &Item::id);
        return before - m_items.cbegin(); // those that are new come last
    };
    std::ranges::stable_sort(now, {}, place);
    if (std::exchange(m_items, now) != now)
        Q_EMIT changed();
}

} // namespace fendrel
