#include "Widgets/Usage/LogFolder.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <set>
#include <string_view>

namespace fendrel::usage {

namespace {

constexpr int deepest = 32; // folders in one another, which are open all at once

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

FileFacts factsOf(const struct stat& status) {
    const auto modified =
        std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
    return {.device = static_cast<quint64>(status.st_dev),
            .inode = static_cast<quint64>(status.st_ino),
            .size = static_cast<qint64>(status.st_size),
            .modified = std::chrono::sys_time<std::chrono::nanoseconds>(modified)};
}

Folder openFolder(int parent, const char* name) {
    const int descriptor = ::openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    Folder folder(descriptor < 0 ? nullptr : ::fdopendir(descriptor));
    if (!folder && descriptor >= 0)
        ::close(descriptor);
    return folder;
}

class Walk {
public:
    explicit Walk(const std::function<void(const FoundLog&)>& visit) : m_visit(visit) {}

    void enter(int parent, const char* name, const QByteArray& path, int depth) {
        const Folder folder = depth > deepest ? nullptr : openFolder(parent, name);
        struct stat status {};
        if (!folder || ::fstat(::dirfd(folder.get()), &status) != 0 ||
            !m_entered.emplace(status.st_dev, status.st_ino).second)
            return;
        while (const dirent* item = ::readdir(folder.get()))
            look(::dirfd(folder.get()), *item, path, depth);
    }

private:
    void look(int folder, const dirent& item, const QByteArray& path, int depth) {
        const std::string_view name = item.d_name;
        if (name == "." || name == "..")
            return;
        const auto type = item.d_type;
        if (name.ends_with(".jsonl") && type != DT_DIR) {
            if (const auto facts = usage::factsOf(folder, item.d_name))
                m_visit({.folder = folder, .name = item.d_name, .path = path + '/' + item.d_name, .facts = *facts});
        } else if (type == DT_DIR || type == DT_LNK || type == DT_UNKNOWN) {
            enter(folder, item.d_name, path + '/' + item.d_name, depth + 1);
        }
    }

    const std::function<void(const FoundLog&)>& m_visit;
    std::set<std::pair<dev_t, ino_t>> m_entered;
};

} // namespace

std::optional<FileFacts> factsOf(int folder, const char* name) {
    struct stat status {};
    if (::fstatat(folder, name, &status, 0) != 0 || !S_ISREG(status.st_mode))
        return {};
    return factsOf(status);
}

std::optional<FileFacts> factsOf(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return factsOf(status);
}

void walkLogs(const QStringList& roots, const std::function<void(const FoundLog&)>& visit) {
    Walk walk(visit);
    for (const QString& root : roots) {
        const QByteArray path = QFile::encodeName(root);
        walk.enter(AT_FDCWD, path.constData(), path, 0);
    }
}

} // namespace fendrel::usage
