#pragma once

#include <QString>

namespace fendrel::weather {

/// How a card shows a code of the World Meteorological Organization's table 4677.
struct Appearance {
    QString title{}; ///< in the user's language
    QString symbol{};
    bool operator==(const Appearance&) const = default;
};

Appearance appearance(int code, bool isDay);

} // namespace fendrel::weather
