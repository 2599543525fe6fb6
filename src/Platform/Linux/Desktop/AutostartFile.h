#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The files by which desktops start programs when their user logs in: one of the user's own, which takes the place of
/// one that a package brought for everybody.
namespace fendrel::autostartFile {

/// Whether the program is started. Either file may not be there.
bool starts(const std::optional<QByteArray>& own, const std::optional<QByteArray>& everybodys);

/// What is to become of the user's own file.
struct Change {
    enum class Kind { none, write, remove };
    Kind kind{};
    QByteArray content{};
    bool operator==(const Change&) const = default;
};
/// `program` is the path of the program that is started where nobody has said how.
Change change(bool on, const std::optional<QByteArray>& own, const std::optional<QByteArray>& everybodys,
              const QString& program);

} // namespace fendrel::autostartFile
