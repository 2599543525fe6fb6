#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace fendrel {

/// An address as browsers read it: they take any number of dots at a host's end.
QUrl webAddress(const QString& text, QUrl::ParsingMode mode = QUrl::TolerantMode);

/// The host name that stands for a site: that of an address, in ASCII and lower case, without port, trailing dots and
/// one leading "www.". Nothing for an address without a host.
std::optional<QString> siteName(const QUrl& address);

/// The same from an address or a host in whatever form a person types or pastes it.
std::optional<QString> siteName(const QString& typed);

} // namespace fendrel
