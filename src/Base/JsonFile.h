#pragma once

#include "Base/Result.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace fendrel::JsonFile {

enum class ReadError {
    missing,    ///< there is no such file
    unreadable, ///< the file is there, but cannot be read or is no JSON object
};

/// The JSON object in a file.
Result<QJsonObject, ReadError> read(const QString& path);

/// Replaces a file in one step (temporary file, flush to disk, rename), readable by its owner only. The folder is made
/// when it is missing, owner-only too. Returns false, with a line in the log, when that fails; the old file then
/// stands. Blocks on the disk; safe on any thread.
bool write(const QString& path, const QByteArray& content);

/// Moves a file that cannot be used out of the way, so that nothing of the user's is lost when a new one is written.
/// Returns the name that it has now; nothing when there was no file or it could not be moved.
std::optional<QString> keepAside(const QString& path);

} // namespace fendrel::JsonFile
