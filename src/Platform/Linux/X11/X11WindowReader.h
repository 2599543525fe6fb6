#pragma once

#include "Platform/Linux/X11/X11Connection.h"
#include "Platform/Linux/X11/X11Window.h"

namespace fendrel {

/// Reads what the server knows of windows.
class X11WindowReader {
public:
    explicit X11WindowReader(X11Connection& connection);

    /// Everything, in one round trip; fields of a window that is gone stay empty.
    X11Window read(xcb_window_t id) const;

    /// Reads again what depends on `property`.
    void update(X11Window& window, xcb_atom_t property) const;

    /// With decoration, without the shadow that some applications draw themselves. Nothing when the window is gone.
    std::optional<QRect> frame(xcb_window_t window) const;

    QSize desktopSize() const;

    /// The window manager's _NET_SUPPORTED.
    void setSupported(const QList<quint32>& supported);

private:
    using Properties = QList<X11Property>;
    struct Field {
        QList<xcb_atom_t> properties{};
        void (X11WindowReader::*apply)(X11Window& window, const Properties& read) const {};
    };

    void readTitle(X11Window& window, const Properties& read) const;
    void readClass(X11Window& window, const Properties& read) const;
    void readProcess(X11Window& window, const Properties& read) const;
    void readTransientFor(X11Window& window, const Properties& read) const;
    void readRole(X11Window& window, const Properties& read) const;
    void readState(X11Window& window, const Properties& read) const;
    void readHints(X11Window& window, const Properties& read) const;
    void readDesktop(X11Window& window, const Properties& read) const;
    void readStrut(X11Window& window, const Properties& read) const;
    void readDeclaredEntry(X11Window& window, const Properties& read) const;

    QList<xcb_get_property_cookie_t> ask(xcb_window_t window, const Field& field) const;
    Properties answer(const QList<xcb_get_property_cookie_t>& cookies) const;
    std::optional<qint64> connectedProcess(xcb_window_t window) const;

    X11Connection& m_connection;
    QList<Field> m_fields;
    bool m_namesProcesses{}; ///< the server's process ids are the ones that hold here
    bool m_tellsHidden{};
};

} // namespace fendrel
