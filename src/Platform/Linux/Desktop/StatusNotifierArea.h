#pragma once

#include "Ports/StatusArea.h"

#include <QDBusServiceWatcher>
#include <QObject>

namespace fendrel {

/// The status area as desktops offer it on the session bus (freedesktop.org's StatusNotifierItem). Asks without waiting
/// and starts nothing.
class StatusNotifierArea : public QObject, public StatusArea {
    Q_OBJECT
public:
    StatusNotifierArea();

    bool isAvailable() const override { return m_isAvailable; }

private:
    void ask();
    void setAvailable(bool isAvailable);
    Q_SLOT void hostRegistered() { setAvailable(true); }

    QDBusServiceWatcher m_watcher;
    bool m_isAvailable = false;
};

} // namespace fendrel
