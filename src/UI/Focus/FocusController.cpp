#include "UI/Focus/FocusController.h"

#include "App/AppController.h"
#include "Base/WallTime.h"
#include "Focus/SessionEnds.h"

#include <QLocale>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QString clockText(const QDateTime& time) {
    return QLocale().toString(time.toLocalTime().time(), QLocale::ShortFormat);
}

} // namespace

FocusController::FocusController(AppController& controller)
    : m_controller(controller),
      m_wallClockWatch(controller.platform().clock->onWallClockSet([this] { scheduleEnds(); })),
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
    scheduleEnds();
}

bool FocusController::isOn() const {
    return m_controller.focus().isOn();
}

QString FocusController::remaining() const {
    const auto left = m_controller.focus().remaining();
    return left ? remainingText(*left) : QString();
}

QString FocusController::endTime() const {
    const auto& end = m_controller.focus().endsAt();
    return end ? clockText(toDateTime(*end)) : QString();
}

double FocusController::hourShare() const {
    const auto left = m_controller.focus().remaining();
    return left ? std::min(1.0, *left / Seconds(std::chrono::hours(1))) : 1;
}

QVariantList FocusController::ends() const {
    QVariantList list;
    for (const QDateTime& end : sessionEnds(toDateTime(m_controller.platform().clock->now())))
        list.append(
            QVariantMap{{u"text"_s, clockText(end)}, {u"value"_s, static_cast<double>(end.toMSecsSinceEpoch())}});
    return list;
}

void FocusController::scheduleEnds() {
    const QDateTime now = toDateTime(m_controller.platform().clock->now());
    const auto wait = std::chrono::milliseconds(now.msecsTo(sessionEndsChangeAt(now)));
    m_nextEnd = m_controller.platform().clock->after(wait, [this] { scheduleEnds(); });
    Q_EMIT endsChanged();
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

QString FocusController::driftText() const {
    const Mode& mode = m_controller.engine().current();
    const Seconds used = std::min(m_controller.budget().used(mode.id), mode.dailyBudget);
    return tr("Drift today: %1 of %2").arg(remainingText(used), remainingText(mode.dailyBudget));
}

void FocusController::start(int minutes) {
    if (minutes > 0)
        m_controller.focus().start(std::chrono::minutes(minutes));
    else
        m_controller.focus().start();
}

void FocusController::startUntil(double end) {
    const WallTime time = toWallTime(QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(end)));
    if (const Seconds left = time - m_controller.platform().clock->now(); left > Seconds{})
        m_controller.focus().start(left);
}

void FocusController::stop() {
    m_controller.focus().stop();
}

} // namespace fendrel
