#pragma once

#include <QMetaEnum>
#include <QString>

#include <optional>

namespace fendrel {

/// The stored form of an enumeration is the name of its enumerator (for types registered with Q_ENUM or Q_ENUM_NS).
template<class Enumeration>
const char* enumKey(Enumeration value) {
    return QMetaEnum::fromType<Enumeration>().valueToKey(static_cast<int>(value));
}

template<class Enumeration>
QString enumName(Enumeration value) {
    return QString::fromLatin1(enumKey(value));
}

/// The enumerator of that name, exact to the letter; nothing for any other text.
template<class Enumeration>
std::optional<Enumeration> enumValue(const QString& name) {
    bool isKnown = false;
    const int value = QMetaEnum::fromType<Enumeration>().keyToValue(name.toLatin1().constData(), &isKnown);
    if (!isKnown || name.contains(u'|') || name.contains(u':'))
        return {};
    return static_cast<Enumeration>(value);
}

} // namespace fendrel
