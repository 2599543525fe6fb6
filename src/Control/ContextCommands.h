#pragma once

#include "Control/CommandHandlers.h"

namespace fendrel {

class AppController;

/// What is proposed to the user, and what was open in the modes.
namespace control {

QJsonValue suggestionObject(AppController& controller); ///< null when nothing is suggested
QJsonValue offerObject(AppController& controller);      ///< null when nothing is offered

CommandHandlers::Answer answerSuggestion(AppController& controller, const QString& answer);
QJsonArray listContexts(AppController& controller);                                       ///< in the order of the modes
CommandHandlers::Answer restoreContext(AppController& controller, const QString& modeID); ///< empty: what is offered
CommandHandlers::Answer dismissContext(AppController& controller);
CommandHandlers::Answer forgetContext(AppController& controller, const Request& request);

} // namespace control
} // namespace fendrel
