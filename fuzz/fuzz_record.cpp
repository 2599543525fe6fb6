// Property lists of the log of notifications, which other programs fill.

#include "Base/PropertyList.h"
#include "Messages/NotificationContent.h"
#include "Require.h"

#include <cstdint>

using namespace fendrel;

namespace {

/// Real numbers that are none compare unequal with themselves.
bool holdsReal(const QVariant& value) {
    if (value.typeId() == QMetaType::Double)
        return true;
    const auto parts = value.typeId() == QMetaType::QVariantMap ? value.toMap().values() : value.toList();
    for (const QVariant& part : parts) {
        if (holdsReal(part))
            return true;
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    constexpr propertyList::Bounds bounds{.bytes = 1 << 16, .objects = 1000, .depth = 16};
    const auto value = propertyList::read(bytes, bounds);
    if (value && !holdsReal(*value))
        require(propertyList::read(propertyList::write(*value)) == value);
    if (const auto content = request(bytes))
        require(!content->title.isEmpty() || !content->body.isEmpty());
    return 0;
}
