#pragma once

#include "App/HotKeyPlan.h"
#include "Base/Handle.h"

#include <QObject>

#include <functional>
#include <utility>
#include <vector>

namespace fendrel {

class HotKeys;

/// Holds the hot keys of a plan, and knows which of them another program holds. Main thread.
class HotKeyRegistry : public QObject {
    Q_OBJECT
public:
    explicit HotKeyRegistry(HotKeys& hotKeys);

    std::function<void(const HotKeyAction&)> onPressed = [](const HotKeyAction&) {};

    /// Takes what is new in the plan and lets go of what is not in it any more; the rest is kept. What was refused is
    /// tried again, for its holder may have ended.
    void apply(const HotKeyPlan& plan);

    /// Tries again what was refused.
    void retry();

    /// Lets go of all of them until the handle goes: somebody is choosing a combination, and wants to press one.
    Handle pause();

    bool works(const HotKeyAction& action) const; ///< pressing it would do something
    const QList<HotKey>& refused() const { return m_refused; }
    const QList<HotKeyPlan::Clash>& clashes() const { return m_plan.clashes; }

Q_SIGNALS:
    void changed();

private:
    void update();

    HotKeys& m_hotKeys;
    HotKeyPlan m_plan;
    std::vector<std::pair<HotKey, Handle>> m_taken;
    QList<HotKey> m_refused;
    int m_pauses = 0;
};

} // namespace fendrel
