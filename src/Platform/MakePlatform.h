#pragma once

#include "Ports/Platform.h"

#include <QString>

#include <optional>

namespace fendrel {

/// What this desktop lacks for Fendrel to run, as a sentence for the user; nothing when all is there.
/// To be asked before the toolkit opens the display, which ends the program where there is none.
std::optional<QString> missingRequirement();

/// Sets up the toolkit for this system; to be called before it starts.
void prepareToolkit();

/// The user's folders, as the environment says.
Folders standardFolders();

/// The browsers that this system may have.
QList<BrowserHome> standardBrowsers();

/// What of it needs neither a display nor the toolkit: files, settings, and what is changed of the desktop.
Platform makePlatformWithoutDisplay();

/// Every port with this system's adapter. Called once, on the main thread, when the toolkit runs.
Platform makePlatform();

} // namespace fendrel
