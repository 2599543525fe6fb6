#pragma once

#include <string_view>

namespace fendrel {

/// Where the needle (three bytes or more) first stands from `begin` on, or `end`. Looks for its last two bytes at many
/// places at once: a letter and a quote are a rare pair, because quotes inside of JSON text have a backslash before
/// them.
const char* findBytes(const char* begin, const char* end, std::string_view needle);

/// The same for processors without such instructions.
const char* findBytesPortably(const char* begin, const char* end, std::string_view needle);

} // namespace fendrel
