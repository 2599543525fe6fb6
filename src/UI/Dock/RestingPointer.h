#pragma once

#include "Ports/Clock.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace fendrel {

/// The item of a dock that the pointer has come to rest on, and for which more is shown beside it. It stays while the
/// pointer is on its way to what is shown, and in there; from there on, another item needs no rest.
class RestingPointer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QQuickItem* item READ item NOTIFY changed)

public:
    static constexpr auto rest = std::chrono::milliseconds{500};
    static constexpr auto patience = std::chrono::milliseconds{300};

    explicit RestingPointer(Clock& clock) : m_clock(clock) {}

    QQuickItem* item() const { return m_item; } ///< none while the pointer rests on nothing
    Q_INVOKABLE void enter(QQuickItem* item);
    Q_INVOKABLE void leave(QQuickItem* item);
    Q_INVOKABLE void enterShown();
    Q_INVOKABLE void leaveShown();
    Q_INVOKABLE void close(); ///< at once: a menu opens, or the item was pressed

Q_SIGNALS:
    void changed();

private:
    void set(QQuickItem* item);
    void leaveSoon();

    Clock& m_clock;
    QPointer<QQuickItem> m_item;
    QPointer<QQuickItem> m_entered;
    Handle m_wait;
};

} // namespace fendrel
