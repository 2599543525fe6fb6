#pragma once

#include "Ports/LanguageModel.h"

#include <QByteArray>

namespace fendrel {

/// How a model server is spoken to.
enum class ModelProtocol { chatCompletions, ollama };

/// What is posted to a model server. Pure.
namespace ModelServerRequest {

/// The most characters of a text property, and of an answer that has no schema.
inline constexpr qsizetype propertyLimit = 120, textLimit = 600;

QByteArray path(ModelProtocol protocol);
QByteArray question(ModelProtocol protocol, const QString& model, const Question& question);

/// Has the server read the beginning of every question with these instructions, for which it keeps the work done.
QByteArray prewarming(ModelProtocol protocol, const QString& model, Question question);

} // namespace ModelServerRequest

} // namespace fendrel
