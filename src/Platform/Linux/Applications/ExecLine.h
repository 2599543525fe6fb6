#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace fendrel {

struct DesktopEntry;

/// The program and arguments of an entry's Exec, its quotes undone and its field codes filled in for a start without
/// files: there are none to open, so those codes vanish. Nothing when the line is broken or names no program.
std::optional<QStringList> execArguments(const DesktopEntry& entry);

/// The command lines that open files with an entry's program: one for all of them, or one for each where it takes one
/// at a time. What it cannot take is left out: remote addresses where it wants files, all where it opens nothing.
QList<QStringList> execLines(const DesktopEntry& entry, const QList<QUrl>& files);

/// Whether the program opens addresses, as opposed to files of this machine alone.
bool takesAddresses(const DesktopEntry& entry);

/// Whether the program shows pages of the web.
bool isBrowser(const DesktopEntry& entry);

/// The file name of the program that a command line is about: past "env NAME=value" and past an interpreter. Empty
/// when there is none.
QString programName(const QStringList& arguments);
QString programName(const QString& exec);

} // namespace fendrel
