#pragma once

#include "App/PreferenceTypes.h"
#include "Ports/Displays.h"

#include <QList>
#include <QPoint>
#include <QString>

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace fendrel {

/// The displays that carry a dock. The active one falls back to the main one when it is not known or gone.
QList<Display> dockScreens(const QList<Display>& displays, DockDisplay setting,
                           const std::optional<QString>& activeDisplay);

/// The display that a point of the desktop lies on; nothing for a point beside all of them.
std::optional<Display> displayAt(const QList<Display>& displays, QPoint point);

/// Keeps what belongs to one of `displays`. What belongs to none of them moves to those that have nothing, or ends.
template<class Kept>
void moveToDisplays(std::map<QString, Kept>& byDisplay, const QList<Display>& displays) {
    std::map<QString, Kept> spare;
    for (auto entry = byDisplay.begin(); entry != byDisplay.end();) {
        const auto current = entry++;
        if (std::ranges::find(displays, current->first, &Display::id) == displays.end())
            spare.insert(byDisplay.extract(current));
    }
    for (const Display& display : displays) {
        if (spare.empty() || byDisplay.contains(display.id))
            continue;
        auto entry = spare.extract(spare.begin());
        entry.key() = display.id;
        byDisplay.insert(std::move(entry));
    }
}

} // namespace fendrel
