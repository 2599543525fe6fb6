#pragma once

#include <QString>

#include <optional>

namespace fendrel {

/// The host name that stands for a site, from an address or a host in whatever form a person types or pastes it:
/// lower case, without scheme, path, port, trailing dots and one leading "www.". Nothing for what names no host.
std::optional<QString> siteName(const QString& typed);

} // namespace fendrel
