#pragma once

#include <QStringList>

#include <atomic>
#include <filesystem>
#include <vector>

/// Trash folders as desktops lay them out. Every call waits for the disk; any thread.
namespace fendrel::trashContents {

/// The user's own trash folders on the disks of this machine, besides the one at home.
std::vector<std::filesystem::path> onMountedDisks();

bool isEmpty(const std::filesystem::path& trash); ///< also when there is none

/// Deletes what was thrown away until now, never what a symbolic link leads to. Returns false when something stays, as
/// when `isStopped` was set meanwhile.
bool remove(const std::filesystem::path& trash, const std::atomic<bool>& isStopped);

} // namespace fendrel::trashContents
