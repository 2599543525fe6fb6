#include "App/HotKeyRegistry.h"

#include "Base/Log.h"
#include "Ports/HotKeys.h"

#include <QPointer>

#include <algorithm>

namespace fendrel {

HotKeyRegistry::HotKeyRegistry(HotKeys& hotKeys) : m_hotKeys(hotKeys) {}

void HotKeyRegistry::apply(const HotKeyPlan& plan) {
    if (plan == m_plan)
        return;
    m_plan = plan;
    update();
    Q_EMIT changed();
}

void HotKeyRegistry::retry() {
    const QList<HotKey> before = m_refused;
    update();
    if (m_refused != before)
        Q_EMIT changed();
}

Handle HotKeyRegistry::pause() {
    ++m_pauses;
    update();
    return Handle([self = QPointer(this)] {
        if (!self)
            return;
        --self->m_pauses;
        self->update();
        Q_EMIT self->changed();
    });
}

bool HotKeyRegistry::works(const HotKeyAction& action) const {
    const auto is = [&](const HotKey& hotKey) { return hotKey.action == action; };
    return std::ranges::any_of(m_plan.keys, is) && std::ranges::none_of(m_refused, is);
}

void HotKeyRegistry::update() {
    if (m_pauses > 0) {
        m_taken.clear();
        return;
    }
    // First all that goes: what comes may want its keys.
    std::erase_if(m_taken, [this](const auto& taken) { return !m_plan.keys.contains(taken.first); });
    const QList<HotKey> refusedBefore = std::exchange(m_refused, {});
    for (const HotKey& hotKey : std::as_const(m_plan.keys)) {
        const auto isHeld = [&](const auto& taken) { return taken.first == hotKey; };
        if (std::ranges::any_of(m_taken, isHeld))
            continue;
        auto handle = m_hotKeys.grab(hotKey.modifiers, hotKey.key,
                                     [this, action = hotKey.action] { onPressed(HotKeyAction(action)); });
        if (handle) {
            m_taken.emplace_back(hotKey, *std::move(handle));
            continue;
        }
        m_refused.append(hotKey);
        if (!refusedBefore.contains(hotKey))
            qCInfo(logDesktop).noquote() << "The hot key" << modifierSymbols(hotKey.modifiers) + hotKey.key
                                         << "is another program's, or no key of this keyboard";
    }
}

} // namespace fendrel
