#pragma once

#include "Ports/SettingsStore.h"

#include <QJsonValue>

#include <optional>

/// How settings look in their file. Booleans, strings, integers, numbers with a fraction, lists of strings and
/// dictionaries of numbers are plain JSON. JSON has no more than that, so that the other types carry a tag:
///     {"$double": 2048}                          a double without a fraction; infinite and NaN as text
///     {"$date": "2026-01-05T09:00:00.000Z"}
///     {"$data": "text"}, {"$base64": "/wA="}     bytes: as text where they are valid UTF-8
///     {"$dictionary": {"$5": 1}}                 only where a key begins with "$"
namespace fendrel::StoredValueJson {

QJsonValue encode(const StoredValue& value);

/// Nothing when the value is of no type that a setting can have.
std::optional<StoredValue> decode(const QJsonValue& value);

} // namespace fendrel::StoredValueJson
