#pragma once

#include "Control/CommandHandlers.h"

namespace fendrel {

class AppController;

/// The widgets and what they were fetched. No answer holds a key.
namespace control {

/// Every kind, in the order of the catalogue; asks the keyring first which accounts are connected.
Handle listWidgets(AppController& controller, const CommandHandlers::Answered& answered);

CommandHandlers::Answer showWidget(AppController& controller, const QString& name);

} // namespace control
} // namespace fendrel
