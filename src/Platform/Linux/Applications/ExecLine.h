#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel {

struct DesktopEntry;

/// The program and arguments of an entry's Exec, its quotes undone and its field codes filled in for a start without
/// files: there are none to open, so those codes vanish. Nothing when the line is broken or names no program.
std::optional<QStringList> execArguments(const DesktopEntry& entry);

/// The file name of the program that a command line is about: past "env NAME=value" and past an interpreter. Empty
/// when there is none.
QString programName(const QStringList& arguments);
QString programName(const QString& exec);

} // namespace fendrel
