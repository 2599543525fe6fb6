#pragma once

#include "Control/CommandHandlers.h"

namespace fendrel {

class Classifier;

namespace control {

/// The newest learned answers that have all the words, each without regard to case.
QJsonArray learnedAnswers(AppController& controller, const QStringList& words);

CommandHandlers::Answer forgetAnswers(Classifier& classifier, const Request& request);

} // namespace control
} // namespace fendrel
