#pragma once

#include "Ports/Accessibility.h"

#include <QObject>

namespace fendrel {

class Workspace;

/// The windows that the user minimised, in the order in which that was seen. Followed only while it is on. Main thread.
class MinimizedWindows : public QObject {
    Q_OBJECT
public:
    struct Item {
        WindowID id{};
        QString bundleID{};
        QString title{};
        bool operator==(const Item&) const = default;
    };

    explicit MinimizedWindows(Workspace& workspace) : m_workspace(workspace) {}

    const QList<Item>& items() const { return m_items; }
    void setOn(bool on);
    void refresh(); ///< after windows changed

Q_SIGNALS:
    void changed();

private:
    Workspace& m_workspace;
    QList<Item> m_items;
    bool m_isOn = false;
};

} // namespace fendrel
