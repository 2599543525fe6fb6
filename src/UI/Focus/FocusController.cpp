#include "UI/Focus/FocusController.h"

#include "App/AppController.h"

namespace fendrel {

FocusController::FocusController(AppController& controller)
    : m_controller(controller),
      m_session(
          *controller.platform().clock, Countdown::Unit::minuteThenSecond,
          [this] { return m_controller.focus().remaining(); }, [this] { Q_EMIT changed(); }),
      m_pending(
          *controller.platform().clock, Countdown::Unit::second,
          [this] { return std::optional(m_controller.engine().pendingRemaining()); },
          [this] { Q_EMIT pendingChanged(); }) {
    connect(&controller.focus(), &FocusSession::changed, this, [this] {
        m_session.restart();
        Q_EMIT changed();
    });
    connect(&controller.engine(), &ModeEngine::changed, this, [this] {
        m_pending.restart();
        Q_EMIT pendingChanged();
        Q_EMIT budgetChanged();
    });
    connect(&controller.budget(), &DriftBudget::changed, this, &FocusController::budgetChanged);
    m_session.restart();
}

bool FocusController::isOn() const {
    return m_controller.focus().isOn();
}

QString FocusController::remaining() const {
    const auto left = m_controller.focus().remaining();
    return left ? remainingText(*left) : QString();
}

int FocusController::pendingSeconds() const {
    return secondsShown(m_controller.engine().pendingRemaining());
}

bool FocusController::hasBudget() const {
    return m_controller.engine().current().dailyBudget > Seconds{};
}

double FocusController::budgetLeft() const {
    return 1 - m_controller.budget().fraction(m_controller.engine().current());
}

QString FocusController::budgetText() const {
    const Mode& mode = m_controller.engine().current();
    if (m_controller.budget().isUsedUp(mode))
        return tr("%1 for today are used up").arg(remainingText(mode.dailyBudget));
    return tr("%1 of drift left today").arg(remainingText(m_controller.budget().remaining(mode)));
}

void FocusController::start(int minutes) {
    if (minutes > 0)
        m_controller.focus().start(std::chrono::minutes(minutes));
    else
        m_controller.focus().start();
}

void FocusController::stop() {
    m_controller.focus().stop();
}

} // namespace fendrel
