#pragma once

#include "Platform/Linux/X11/X11Connection.h"

#include <QList>
#include <QObject>
#include <QRect>
#include <QString>

#include <memory>

namespace fendrel {

/// A display as the server arranges it.
struct X11Monitor {
    QString id{}; ///< of the hardware where it tells, else of the output
    QRect frame{};
    bool isPrimary{};
    bool operator==(const X11Monitor&) const = default;
};

/// The monitors of the X server, the primary one first. Main thread. The toolkit's own list misses changes in place.
/// On a server without RandR 1.5 the whole desktop is one monitor.
class X11Monitors : public QObject {
    Q_OBJECT
public:
    explicit X11Monitors(std::shared_ptr<X11Connection> connection);

    const QList<X11Monitor>& all() const { return m_monitors; }

Q_SIGNALS:
    void changed();

private:
    void handle(const xcb_generic_event_t& event);
    QList<X11Monitor> read() const;
    QString idOf(const QList<quint32>& outputs, xcb_atom_t name) const;

    std::shared_ptr<X11Connection> m_connection;
    std::optional<std::uint8_t> m_firstEvent; ///< of RandR, where it knows monitors
    xcb_atom_t m_hardwareDescription{};
    QList<X11Monitor> m_monitors;
};

} // namespace fendrel
