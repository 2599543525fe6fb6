#pragma once

#include "Ports/LanguageModel.h"

#include <optional>

/// What a language model is asked about the titles that somebody had open, and the note that its answer makes.
namespace fendrel::NoteQuestion {

Question about(const QStringList& titles);

/// One line of a few words; nothing where the model had nothing to say.
std::optional<QString> note(const LanguageModel::Answer& answer);

} // namespace fendrel::NoteQuestion
