#pragma once

#include <QByteArray>
#include <QStringList>

#include <chrono>
#include <functional>

namespace fendrel::usage {

/// What tells that a file changed, or is another one of the same name.
struct FileFacts {
    quint64 device{};
    quint64 inode{};
    qint64 size{};
    std::chrono::sys_time<std::chrono::nanoseconds> modified{};
    bool isSameFile(const FileFacts& other) const { return device == other.device && inode == other.inode; }
    bool operator==(const FileFacts&) const = default;
};

/// Of a path below a folder's descriptor, following links; nothing for what is not an ordinary file.
std::optional<FileFacts> factsOf(int folder, const char* name);
/// Of an open file.
std::optional<FileFacts> factsOf(int descriptor);

struct FoundLog {
    int folder{};       ///< the open folder that it is in, and
    const char* name{}; ///< its name there: both for the call only
    QByteArray path{};
    FileFacts facts{};
};

/// Visits all files below these folders whose names end with ".jsonl". A folder that can be reached in several ways, a
/// loop of links among them, is walked once. What is missing or may not be read is passed over.
void walkLogs(const QStringList& roots, const std::function<void(const FoundLog&)>& visit);

} // namespace fendrel::usage
