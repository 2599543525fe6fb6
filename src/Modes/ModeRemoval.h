#pragma once

#include "Base/Handle.h"
#include "Modes/Mode.h"

#include <QObject>

#include <chrono>
#include <optional>

namespace fendrel {

class Clock;
class ModeEngine;

/// Deletes modes at once, and for a while takes the last deletion back: the mode, its place in the list, and that it
/// was the current one. Main thread.
class ModeRemoval : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::seconds lifetime{10}; ///< of the offer

    ModeRemoval(ModeEngine& engine, Clock& clock) : m_engine(engine), m_clock(clock) {}

    void remove(const QString& modeID); ///< an unknown mode, and the last one, stay as they are
    const Mode* removed() const;        ///< what can be taken back; null when nothing can
    /// Takes the deletion back and returns the identifier of the mode; without anything to restore, nothing.
    std::optional<QString> restore();

Q_SIGNALS:
    void changed();

private:
    struct Removed {
        Mode mode{};
        qsizetype position{};
        QString successor{}; ///< became the current mode in its stead; empty when it was not the current one
    };

    ModeEngine& m_engine;
    Clock& m_clock;
    std::optional<Removed> m_removed;
    Handle m_end;
};

} // namespace fendrel
