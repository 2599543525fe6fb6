#include "Modes/ModeRemoval.h"

#include "Modes/ModeEngine.h"

#include <QUuid>

#include <utility>

namespace fendrel {

void ModeRemoval::remove(const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || m_engine.modes().size() < 2)
        return;
    Removed removed{.mode = *mode, .position = mode - m_engine.modes().constData()};
    const bool wasCurrent = m_engine.current().id == modeID;
    m_engine.deleteMode(QString(modeID));
    if (wasCurrent)
        removed.successor = m_engine.current().id;
    m_removed = std::move(removed);
    m_end = m_clock.after(lifetime, [this] {
        m_removed.reset();
        Q_EMIT changed();
    });
    Q_EMIT changed();
}

const Mode* ModeRemoval::removed() const {
    return m_removed ? &m_removed->mode : nullptr;
}

std::optional<QString> ModeRemoval::restore() {
    auto removed = std::exchange(m_removed, {});
    m_end.reset();
    if (!removed)
        return {};
    if (m_engine.mode(removed->mode.id)) // its template was added again meanwhile
        removed->mode.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_engine.addMode(removed->mode);
    m_engine.moveModes({m_engine.modes().size() - 1}, removed->position);
    // Whoever went to another mode since then is left there.
    if (!removed->successor.isEmpty() && m_engine.current().id == removed->successor)
        m_engine.commit(removed->mode);
    Q_EMIT changed();
    return removed->mode.id;
}

} // namespace fendrel
