#include "UI/Focus/GateController.h"

#include "App/AppController.h"
#include "UI/Countdown.h"

#include <cmath>

namespace fendrel {

namespace {

const Mode* owner(AppController& controller) {
    const auto& blocked = controller.gate().blocked();
    return blocked && blocked->owner ? &*blocked->owner : nullptr;
}

} // namespace

GateController::GateController(AppController& controller) : m_controller(controller) {
    connect(&controller.gate(), &Gate::changed, this, &GateController::changed);
    connect(&controller.engine(), &ModeEngine::changed, this, &GateController::changed);
    connect(&controller.budget(), &DriftBudget::changed, this, &GateController::changed);
    connect(&controller.preferences(), &Preferences::changed, this, &GateController::changed);
}

bool GateController::isOpen() const {
    return m_controller.gate().blocked().has_value();
}

bool GateController::isSite() const {
    return m_controller.gate().blockedSite() != nullptr;
}

QString GateController::name() const {
    const auto& blocked = m_controller.gate().blocked();
    return blocked ? blocked->name : QString();
}

QString GateController::note() const {
    const auto& blocked = m_controller.gate().blocked();
    return blocked && blocked->note != blocked->name ? blocked->note.value_or(QString()) : QString();
}

QString GateController::ownerName() const {
    const Mode* mode = owner(m_controller);
    return mode ? mode->name : QString();
}

QString GateController::ownerSymbol() const {
    const Mode* mode = owner(m_controller);
    return mode ? mode->symbol : QString();
}

QColor GateController::ownerTint() const {
    const Mode* mode = owner(m_controller);
    return color(mode ? mode->tint : Tint::graphite);
}

int GateController::wait() const {
    const Mode* mode = owner(m_controller);
    return mode ? secondsShown(m_controller.engine().entryDelay(*mode)) : 0;
}

bool GateController::isSwitching() const {
    const Mode* mode = owner(m_controller);
    const auto& pending = m_controller.engine().pending();
    return mode && pending && pending->target.id == mode->id;
}

QString GateController::usedUp() const {
    const Mode* mode = owner(m_controller);
    // The owner's allowance comes first: it is why the switch takes long.
    for (const Mode* candidate : {mode, &m_controller.engine().current()}) {
        if (candidate && m_controller.budget().isUsedUp(*candidate))
            return tr("%1 min for today are used up").arg(std::lround(candidate->dailyBudget.count() / 60));
    }
    return {};
}

QString GateController::reason() const {
    return m_controller.gate().reason();
}

void GateController::setReason(const QString& reason) {
    m_controller.gate().setReason(reason);
}

void GateController::stay() {
    m_controller.drift().stay();
}

void GateController::switchToOwner() {
    m_controller.drift().switchToOwner();
}

void GateController::allowOnce() {
    m_controller.drift().allowOnce();
}

void GateController::addToMode() {
    m_controller.drift().addToMode();
}

} // namespace fendrel
