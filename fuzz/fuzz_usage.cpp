// Lines of a coding agent's logs.

#include "Require.h"
#include "Widgets/Usage/UsageLine.h"

#include <cstdint>
#include <cstring>
#include <vector>

using namespace fendrel::usage;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const char behind : {'\n', '}', '"'}) {
        std::vector<char> bytes(size + LineParser::padding, behind);
        std::memcpy(bytes.data(), data, size);
        LineParser parser;
        const auto reply = parser.parse({bytes.data(), size});
        if (!reply)
            continue;
        require(reply->output >= 0 && reply->output <= reply->tokens && reply->tokens <= 4'000'000'000);
        require(!reply->model.empty() && reply->model != "<synthetic>");
    }
    return 0;
}
