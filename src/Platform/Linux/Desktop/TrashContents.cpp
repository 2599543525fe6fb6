#include "Platform/Linux/Desktop/TrashContents.h"

#include <fts.h>
#include <mntent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace fendrel::trashContents {

namespace fs = std::filesystem;

namespace {

/// What the path itself is; what a link leads to does not count.
std::optional<struct stat> factsOf(const fs::path& path) {
    struct stat facts {};
    return ::lstat(path.c_str(), &facts) == 0 ? std::optional(facts) : std::nullopt;
}

bool isFolder(const fs::path& path) {
    const auto facts = factsOf(path);
    return facts && S_ISDIR(facts->st_mode);
}

bool isOwnFolder(const fs::path& path) {
    const auto facts = factsOf(path);
    return facts && S_ISDIR(facts->st_mode) && facts->st_uid == ::getuid();
}

std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code error;
    if (!isFolder(folder))
        return entries;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        entries.push_back(entry->path());
    return entries;
}

struct Close {
    void operator()(FTS* walk) const { ::fts_close(walk); }
    void operator()(FILE* table) const { ::endmntent(table); }
};

/// Returns false when something stays.
bool removeTree(const fs::path& path, const std::atomic<bool>& isStopped) {
    std::string root = path.string();
    const std::array<char*, 2> roots{root.data(), nullptr};
    const std::unique_ptr<FTS, Close> walk(::fts_open(roots.data(), FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV, nullptr));
    if (!walk)
        return false;
    bool isGone = true;
    while (const FTSENT* entry = ::fts_read(walk.get())) {
        if (isStopped)
            return false;
        switch (entry->fts_info) {
        case FTS_D: // one that may not be written holds on to what is in it
            if ((entry->fts_statp->st_mode & S_IRWXU) != S_IRWXU)
                ::chmod(entry->fts_accpath, S_IRWXU);
            break;
        case FTS_DP:
            isGone = ::rmdir(entry->fts_accpath) == 0 && isGone;
            break;
        default:
            isGone = ::unlink(entry->fts_accpath) == 0 && isGone;
        }
    }
    return isGone;
}

} // namespace

std::vector<fs::path> onMountedDisks() {
    std::vector<fs::path> folders;
    const std::unique_ptr<FILE, Close> table(::setmntent("/proc/self/mounts", "re"));
    const std::string user = std::to_string(::getuid());
    std::array<char, 4096> text{};
    mntent mount{};
    while (table && ::getmntent_r(table.get(), &mount, text.data(), static_cast<int>(text.size())) != nullptr) {
        // A server that does not answer any more would hold us up for ever.
        const bool isDisk = std::string_view(mount.mnt_fsname).starts_with("/dev/");
        if (!isDisk || ::hasmntopt(&mount, MNTOPT_RO) != nullptr)
            continue;
        const fs::path top = mount.mnt_dir;
        const auto shared = factsOf(top / ".Trash");
        if (shared && S_ISDIR(shared->st_mode) && (shared->st_mode & S_ISVTX) != 0 &&
            isOwnFolder(top / ".Trash" / user))
            folders.push_back(top / ".Trash" / user);
        if (isOwnFolder(top / (".Trash-" + user)))
            folders.push_back(top / (".Trash-" + user));
    }
    return folders;
}

bool isEmpty(const fs::path& trash) {
    std::error_code error;
    const fs::directory_iterator first(trash / "files", error);
    return error || first == fs::directory_iterator();
}

bool remove(const fs::path& trash, const std::atomic<bool>& isStopped) {
    const fs::path files = trash / "files";
    // A program that throws something away writes the description first. One that is here now, and has no file when the
    // others are deleted, never had one, or has one no more.
    const auto descriptions = entriesOf(trash / "info");
    bool isGone = true;
    for (const fs::path& file : entriesOf(files))
        isGone = removeTree(file, isStopped) && isGone;
    for (const fs::path& description : descriptions) {
        if (!isStopped && description.extension() == ".trashinfo" && !factsOf(files / description.stem()))
            ::unlink(description.c_str());
    }
    ::unlink((trash / "directorysizes").c_str());
    return isGone && isEmpty(trash);
}

} // namespace fendrel::trashContents
