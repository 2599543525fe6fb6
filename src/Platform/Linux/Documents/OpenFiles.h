#pragma once

#include <QString>
#include <QStringList>

/// Which files a process has open. Waits for the disk; any thread.
namespace fendrel::openFiles {

/// Whether a file is one of the user's documents, by its path: below the home folder and not in a hidden one, of a kind
/// that is known and that programs don't keep for themselves, like databases, logs and libraries. Both paths are
/// without links.
bool isDocument(const QString& path, const QString& home);

/// Paths of the documents that a process holds open. `proc` is where the process file system is mounted.
QStringList held(qint64 pid, const QString& home, const QString& proc = QStringLiteral("/proc"));

/// Paths of the files that a process was started with, whatever it did with them since.
QStringList startedWith(qint64 pid, const QString& proc = QStringLiteral("/proc"));

} // namespace fendrel::openFiles
