#pragma once

#include "Messages/HeldMessage.h"
#include "Ports/LanguageModel.h"

/// The question "does this message need the user now?" for a language model, and the reading of its answer.
namespace fendrel::UrgencyQuestion {

Question about(const HeldMessage& message);

struct Urgency {
    bool urgent{};
    QString why{};
};
Urgency urgency(const LanguageModel::Answer& answer);

} // namespace fendrel::UrgencyQuestion
