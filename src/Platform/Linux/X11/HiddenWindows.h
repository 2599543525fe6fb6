#pragma once

#include "Platform/Linux/X11/X11Windows.h"

#include <QObject>
#include <QSet>

namespace fendrel {

/// The windows that were minimised because their application was hidden, until somebody restores them. Main thread.
class HiddenWindows : public QObject {
    Q_OBJECT
public:
    explicit HiddenWindows(X11Windows& windows);

    void add(xcb_window_t id) { m_hidden.insert(id); } ///< it is about to be minimised
    bool contains(xcb_window_t id) const { return m_hidden.contains(id); }
    bool take(xcb_window_t id) { return m_hidden.remove(id); } ///< false for one that was not hidden

private:
    QSet<xcb_window_t> m_hidden;
};

} // namespace fendrel
