#pragma once

#include <QByteArray>

namespace fendrel {

/// A reply as a line of the coding agent's logs tells it, with its end.
inline QByteArray usageLine(const QByteArray& time, const QByteArray& request, qint64 output,
                            const QByteArray& model = "opus") {
    return R"({"type":"assistant","timestamp":")" + time + R"(","requestId":")" + request +
           R"(","message":{"model":")" + model + R"(","usage":{"output_tokens":)" + QByteArray::number(output) +
           "}}}\n";
}

} // namespace fendrel
