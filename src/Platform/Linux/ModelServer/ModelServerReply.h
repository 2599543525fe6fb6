#pragma once

#include "Platform/Linux/ModelServer/ModelServerRequest.h"

namespace fendrel::ModelServerReply {

/// Reads a model server's answer. Servers may ignore the schema and still report success, so what comes is held to it.
/// An error is text for the log that quotes nothing of the answer.
Result<LanguageModel::Answer, QString> read(ModelProtocol protocol, const QByteArray& body,
                                            const QList<SchemaProperty>& schema);

} // namespace fendrel::ModelServerReply
