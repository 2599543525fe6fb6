#pragma once

#include "Base/WallTime.h"
#include "Ports/HttpClient.h"
#include "Widgets/WidgetAccounts.h"

namespace fendrel {

/// Nothing: the service takes the key. Otherwise what is wrong, as a card would say it; never the key.
using AccountTestDone = std::function<void(const std::optional<QString>& problem)>;

/// Asks a service something small with the key that is kept for it. Main thread; answers once, later, and not at all
/// when the handle is dropped.
Handle testAccount(WidgetAccounts::Service service, const WidgetAccounts& accounts, HttpClient& http, WallTime now,
                   AccountTestDone done);

} // namespace fendrel
