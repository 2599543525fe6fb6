#pragma once

#include <QByteArrayView>

/// What reader and writer of binary property lists have in common.
namespace fendrel::propertyList {

inline constexpr QByteArrayView magic("bplist00");
inline constexpr qsizetype trailerSize = 32;

enum Marker : quint8 {
    null = 0x0,
    boolFalse = 0x8,
    boolTrue = 0x9,
    integer = 0x10,
    real = 0x20,
    date = 0x33,
    data = 0x40,
    ascii = 0x50,
    utf16 = 0x60,
    array = 0xa0,
    set = 0xc0,
    dictionary = 0xd0,
};

} // namespace fendrel::propertyList
