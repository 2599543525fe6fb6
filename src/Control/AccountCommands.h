#pragma once

#include "Base/Handle.h"
#include "Control/CommandHandlers.h"

namespace fendrel {

class WidgetAccounts;

/// The accounts that widgets use. No answer holds a key.
namespace control {

Handle listAccounts(WidgetAccounts& accounts, const CommandHandlers::Answered& answered);
Handle setAccount(WidgetAccounts& accounts, const Request& request, const CommandHandlers::Answered& answered);
Handle removeAccount(WidgetAccounts& accounts, const Request& request, const CommandHandlers::Answered& answered);

} // namespace control
} // namespace fendrel
