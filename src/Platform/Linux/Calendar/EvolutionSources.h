#pragma once

#include <QDBusMessage>
#include <QList>
#include <QString>
#include <QStringList>

namespace fendrel {

/// A calendar or a list of tasks that the desktop's calendar server knows.
struct EvolutionSource {
    enum class Kind { events, tasks };
    QString uid{};
    Kind kind{};
    bool operator==(const EvolutionSource&) const = default;
};

/// What the server's registry tells, without what the user switched off.
struct EvolutionSources {
    QList<EvolutionSource> sources{};
    QStringList addresses{}; ///< of the user's accounts, lower-case

    /// `reply` to GetManagedObjects at "org.gnome.evolution.dataserver.Sources5".
    static EvolutionSources read(const QDBusMessage& reply);
    /// `data` is what the registry has of one of them, by their UIDs.
    static EvolutionSources read(const QMap<QString, QString>& data);
};

} // namespace fendrel
