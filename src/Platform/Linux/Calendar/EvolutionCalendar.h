#pragma once

#include "Base/Handle.h"
#include "Platform/Linux/Calendar/EvolutionSources.h"

#include <QDBusMessage>
#include <QVariantList>

#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace fendrel {

/// One calendar or list of tasks of the server's, opened by the first call. Main thread.
class EvolutionCalendar {
public:
    using Done = std::function<void(const QDBusMessage& reply)>;

    explicit EvolutionCalendar(EvolutionSource source) : m_source(std::move(source)) {}

    const EvolutionSource& source() const { return m_source; }
    const QString& address() const {
        return m_address;
    } ///< of its owner, lower-case; empty: it has none, or isn't open

    /// False once it is known that it tells nobody of changes.
    bool isFollowed() const { return m_isFollowed; }

    /// Calls one of "org.gnome.evolution.dataserver.Calendar". `done` gets the reply, or the error that came instead.
    Handle call(const QString& method, const QVariantList& arguments, Done done);

    std::function<void(const QString& service)> onOpened = [](const QString&) {}; ///< by its unique name on the bus

    // What it had to say the last time, which still stands when it doesn't answer.
    QStringList objects{};        ///< texts of events or tasks
    QStringList askedZones{};     ///< for which it was asked
    QStringList describedZones{}; ///< VTIMEZONE

private:
    struct Waiting {
        QString method{};
        QVariantList arguments{};
        Done done{};
        Handle call{};
        bool isWanted{true};
    };
    void open();
    void opened(const QDBusMessage& reply);
    void follow();
    QDBusMessage message(const QString& method, const QVariantList& arguments) const;

    EvolutionSource m_source;
    QString m_service; ///< its unique name; empty: not open
    QString m_path;
    QString m_address;
    bool m_isFollowed = true;
    std::list<std::shared_ptr<Waiting>> m_waiting;
    Handle m_opening;
    Handle m_following;
};

} // namespace fendrel
