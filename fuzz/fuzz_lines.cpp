// However a stream is cut, the same lines come of it.

#include "Base/LineFramer.h"
#include "Require.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    fendrel::LineFramer framer;
    std::string stream;
    std::vector<std::string> lines;
    while (input.remaining_bytes() > 0) {
        const std::string piece = input.ConsumeRandomLengthString();
        stream += piece;
        require(framer.feed(piece, [&](std::string_view line) { lines.emplace_back(line); }));
    }
    std::string joined;
    for (const std::string& line : lines) {
        require(line.find('\n') == std::string::npos);
        joined += line + '\n';
    }
    const std::size_t end = stream.rfind('\n');
    require(joined == stream.substr(0, end == std::string::npos ? 0 : end + 1));
    return 0;
}
