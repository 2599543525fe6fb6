#pragma once

#include <string_view>

/// As much of JSON as it takes to pass messages on without reading them.
namespace fendrel::relay {

/// Whether the text has the outline of a JSON object, blanks around it allowed.
bool isObject(std::string_view text);

/// The object's own "type", as it is written: escapes in it stay. Empty when it has none, or none that is a string. Of
/// several the last counts, as for those who read the message.
std::string_view typeOf(std::string_view object);

} // namespace fendrel::relay
