#include "Modes/Tint.h"

namespace fendrel {

QColor color(Tint tint) {
    switch (tint) {
    case Tint::amber:
        return {0xe8, 0x9a, 0x1c};
    case Tint::coral:
        return {0xf0, 0x64, 0x4f};
    case Tint::pink:
        return {0xe2, 0x4f, 0x93};
    case Tint::purple:
        return {0x8b, 0x5c, 0xe6};
    case Tint::blue:
        return {0x2f, 0x7d, 0xf0};
    case Tint::teal:
        return {0x12, 0x9a, 0xa0};
    case Tint::green:
        return {0x2e, 0xa0, 0x55};
    case Tint::graphite:
        break;
    }
    return {0x6e, 0x76, 0x81};
}

QString hex(Tint tint) {
    return color(tint).name(QColor::HexRgb);
}

} // namespace fendrel
