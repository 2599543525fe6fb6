#pragma once

#include "Base/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace fendrel {

/// Where a server of this machine listens.
struct LocalEndpoint {
    QByteArray authority{}; ///< a loopback address with its port, never a name that would have to be looked up
    QByteArray socket{};    ///< path of a Unix socket, which goes before the authority; empty: TCP
    bool operator==(const LocalEndpoint&) const = default;
};

/// What a user writes to name a server of this machine.
struct LocalHttpAddress {
    QString name{};                   ///< as the user wrote it
    QList<LocalEndpoint> endpoints{}; ///< tried in this order
    bool operator==(const LocalHttpAddress&) const = default;

    /// Takes "localhost:8080", "http://127.0.0.1:8080", "[::1]:8080", "unix:/path" and "/path". Anything that could
    /// lead away from this machine is refused, with a sentence for the user.
    static Result<LocalHttpAddress, QString> parse(const QString& text);
};

} // namespace fendrel
