#pragma once

#include "Control/Commands.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>

#include <optional>

namespace fendrel::control {

/// The control socket carries one JSON object per line, both ways. A request has "command" and, where the command takes
/// them, "arguments" (list of strings) and "options" (object of strings). The answer has "result", or "error" with one
/// line of text; the answer to a stream is followed by more objects until either side closes.

QString socketPath(const QString& dataFolder);

QByteArray encode(const Request& request);
QByteArray encode(const QJsonObject& object); ///< with the newline
/// Nothing for what is no request of a known command.
std::optional<Request> decodeRequest(const QByteArray& line);

QJsonObject result(const QJsonValue& value);
QJsonObject error(const QString& text);

} // namespace fendrel::control
