#pragma once

#include "Modes/Tint.h"
#include "Ports/Clock.h"

#include <QObject>
#include <QUuid>

#include <functional>
#include <optional>

namespace fendrel {

/// The offer to take back the last edit of a mode that was made in the dock. It goes by itself after a while, but not
/// while the pointer rests on it. One at a time. Main thread.
class DockUndo : public QObject {
    Q_OBJECT
public:
    struct Offer {
        QUuid id{};
        QString text{};
        Tint color{}; ///< of the mode concerned
        bool operator==(const Offer&) const = default;
    };

    static constexpr auto lifetime = std::chrono::seconds{6}; ///< since it was made, or the pointer left it

    explicit DockUndo(Clock& clock) : m_clock(clock) {}

    const std::optional<Offer>& offer() const { return m_offer; }
    /// Takes the place of the offer on show. `undo` reverses the edit.
    void show(const QString& text, Tint color, std::function<void()> undo);
    void runUndo(); ///< and dismisses the offer; without one it does nothing
    void dismiss();

    bool isHovered() const { return m_isHovered; }
    void setHovered(bool isHovered);

Q_SIGNALS:
    void changed();

private:
    void scheduleHide();

    Clock& m_clock;
    std::optional<Offer> m_offer;
    std::function<void()> m_undo;
    bool m_isHovered = false;
    std::optional<Handle> m_hideTask;
};

} // namespace fendrel
