#include "Modes/StoredMode.h"

#include "Base/EnumNames.h"

namespace fendrel {

StoredMode StoredMode::from(const Mode& mode, qint64 order) {
    return {.id = mode.id,
            .name = mode.name,
            .symbol = mode.symbol,
            .tint = enumName(mode.tint),
            .apps = mode.apps,
            .sites = mode.sites,
            .widgets = mode.widgets,
            .order = order,
            .dailyBudget = mode.dailyBudget.count(),
            .entryDelay = mode.entryDelay.count()};
}

Mode StoredMode::toMode() const {
    return {.id = id,
            .name = name,
            .symbol = symbol,
            .tint = enumValue<Tint>(tint).value_or(Tint::graphite),
            .apps = apps,
            .sites = sites,
            .entryDelay = Seconds(entryDelay),
            .widgets = widgets,
            .dailyBudget = Seconds(dailyBudget)};
}

} // namespace fendrel
