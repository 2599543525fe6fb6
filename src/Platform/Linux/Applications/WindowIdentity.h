#pragma once

#include "Platform/Linux/Applications/EntryIndex.h"
#include "Platform/Linux/Applications/ProcessFacts.h"

#include <QString>

namespace fendrel {

/// What is known of a window that tells its application.
struct WindowTraits {
    QString declaredEntry{}; ///< id of the desktop entry that the application names itself
    QString instanceName{};
    QString className{};
    ProcessFacts process{};
    bool operator==(const WindowTraits&) const = default;
};

/// The desktop entry that the window itself or its start tells, the surest sign first; nullptr when none fits.
const DesktopEntry* entryOfWindow(const WindowTraits& window, const EntryIndex& index);

/// The desktop entry that starts the process's program: the last resort, for one program may be in many applications.
const DesktopEntry* entryOfProgram(const ProcessFacts& process, const EntryIndex& index);

/// Whether this is a site that a browser shows as an application of its own, in a window of its own process.
bool isWebApplication(const WindowTraits& window);

} // namespace fendrel
