#include "Relay/Message.h"

#include <cstddef>

namespace fendrel::relay {

namespace {

constexpr std::string_view blanks = " \t\r\n";

/// The string's content, for a text that begins after its opening quote.
std::string_view stringAt(std::string_view text) {
    for (std::size_t quote = text.find('"'); quote != std::string_view::npos; quote = text.find('"', quote + 1)) {
        std::size_t start = quote;
        while (start > 0 && text[start - 1] == '\\')
            --start;
        if ((quote - start) % 2 == 0)
            return text.substr(0, quote);
    }
    return text;
}

} // namespace

bool isObject(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    return first != std::string_view::npos && text[first] == '{' && text[text.find_last_not_of(blanks)] == '}';
}

std::string_view typeOf(std::string_view object) {
    if (!isObject(object))
        return {};
    std::string_view key;
    std::string_view type;
    bool isValue = false;
    int depth = 0;
    for (std::size_t at = 0; at < object.size(); ++at) {
        switch (object[at]) {
        case '{':
        case '[':
            ++depth;
            break;
        case '}':
        case ']':
            --depth;
            break;
        case ',':
        case ':':
            if (depth == 1) {
                isValue = object[at] == ':';
                if (isValue && key == "type")
                    type = {};
            }
            break;
        case '"': {
            const std::string_view text = stringAt(object.substr(at + 1));
            at += text.size() + 1;
            if (depth == 1 && !isValue)
                key = text;
            else if (depth == 1 && key == "type")
                type = text;
            break;
        }
        default:
            break;
        }
    }
    return type;
}

} // namespace fendrel::relay
