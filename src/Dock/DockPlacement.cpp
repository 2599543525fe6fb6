#include "Dock/DockPlacement.h"

#include <algorithm>

namespace fendrel {

QList<Display> dockScreens(const QList<Display>& displays, DockDisplay setting,
                           const std::optional<QString>& activeDisplay) {
    if (displays.isEmpty() || setting == DockDisplay::all)
        return displays;
    if (setting == DockDisplay::active && activeDisplay) {
        const auto active = std::ranges::find(displays, *activeDisplay, &Display::id);
        if (active != displays.end())
            return {*active};
    }
    return {displays.first()};
}

std::optional<Display> displayAt(const QList<Display>& displays, QPoint point) {
    const auto found =
        std::ranges::find_if(displays, [&](const Display& display) { return display.frame.contains(point); });
    if (found == displays.end())
        return {};
    return *found;
}

} // namespace fendrel
