#pragma once

#include "Ports/Displays.h"

#include <utility>

namespace fendrel {

/// One display of 1920 x 1080 until the test tells otherwise.
class FakeDisplays final : public Displays {
public:
    QList<Display> all() const override { return displays; }

    void setDisplays(QList<Display> now) {
        displays = std::move(now);
        onChanged();
    }

    QList<Display> displays{{.id = QStringLiteral("first"),
                             .frame = {0, 0, 1920, 1080},
                             .workArea = {0, 0, 1920, 1080},
                             .isMain = true,
                             .space = QStringLiteral("1")}};
};

} // namespace fendrel
