#pragma once

#include "Platform/Linux/X11/X11Requests.h"
#include "Platform/Linux/X11/X11Windows.h"

#include <QList>

namespace fendrel {

/// Brings windows back from being minimised without giving them the keyboard. Main thread.
class QuietRestore {
public:
    QuietRestore(X11Windows& windows, Clock& clock);

    /// The first of them ends up on top of the others.
    void restore(const QList<xcb_window_t>& windows);

private:
    void insist(const QList<xcb_window_t>& windows);
    QList<xcb_window_t> minimized(const QList<xcb_window_t>& windows) const;

    X11Windows& m_windows;
    X11Requests m_requests;
    Clock& m_clock;
    QList<xcb_window_t> m_restoring;
    Handle m_insist;
};

} // namespace fendrel
