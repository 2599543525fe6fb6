// What services answer, to each of those that read it: the first byte says to which.

#include "Require.h"
#include "Widgets/AnswerReaders.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto readers = fendrel::answerReaders();
    if (size == 0)
        return 0;
    const auto& reader = readers[data[0] % readers.size()];
    const fendrel::HttpResponse response{
        .status = 200, .body = QByteArray(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size - 1))};
    const auto told = reader.read(response);
    require(told.problem.isEmpty() || told.items == 0);
    for (const QUrl& address : told.addresses)
        require(address.isEmpty() || (address.scheme() == QStringLiteral("https") && !address.host().isEmpty()));
    return 0;
}
