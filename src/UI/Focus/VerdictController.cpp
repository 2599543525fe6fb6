#include "UI/Focus/VerdictController.h"

#include "App/AppController.h"

#include <utility>

namespace fendrel {

namespace {

const Verdict* frontVerdict(AppController& controller) {
    const auto& front = controller.classifier().front();
    return front && front->verdict ? &*front->verdict : nullptr;
}

const Mode* frontMode(AppController& controller) {
    const Verdict* verdict = frontVerdict(controller);
    return verdict && verdict->modeID ? controller.engine().mode(*verdict->modeID) : nullptr;
}

} // namespace

VerdictController::VerdictController(AppController& controller) : m_controller(controller) {
    connect(&controller.classifier(), &Classifier::changed, this, &VerdictController::schedule);
    connect(&controller.engine(), &ModeEngine::changed, this, &VerdictController::schedule);
}

/// Browsers can tell of a hundred pages between two frames: only the last is worth drawing.
void VerdictController::schedule() {
    if (std::exchange(m_isDue, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isDue = false;
            Q_EMIT changed();
        },
        Qt::QueuedConnection);
}

bool VerdictController::isShown() const {
    return m_controller.classifier().front().has_value();
}

bool VerdictController::isClassifying() const {
    const auto& front = m_controller.classifier().front();
    return front && !front->verdict;
}

QString VerdictController::what() const {
    const auto& front = m_controller.classifier().front();
    if (!front)
        return {};
    if (front->verdict)
        return front->verdict->what;
    const auto* app = std::get_if<AppSubject>(&front->subject);
    return app ? app->name : key(front->subject);
}

QString VerdictController::modeID() const {
    const Mode* mode = frontMode(m_controller);
    return mode ? mode->id : QString();
}

QString VerdictController::modeName() const {
    const Mode* mode = frontMode(m_controller);
    return mode ? mode->name : QString();
}

QColor VerdictController::tint() const {
    const Mode* mode = frontMode(m_controller);
    return color(mode ? mode->tint : Tint::graphite);
}

bool VerdictController::isElsewhere() const {
    const Mode* mode = frontMode(m_controller);
    return mode && mode->id != m_controller.engine().current().id;
}

bool VerdictController::isCertain() const {
    const Verdict* verdict = frontVerdict(m_controller);
    return verdict && verdict->certainty == Certainty::certain;
}

QString VerdictController::certainty() const {
    const Verdict* verdict = frontVerdict(m_controller);
    if (!verdict || verdict->source != Source::model)
        return {};
    switch (verdict->certainty) {
    case Certainty::certain:
        return tr("certain");
    case Certainty::likely:
        return tr("likely");
    case Certainty::unsure:
        break;
    }
    return tr("unsure");
}

void VerdictController::holdSubject() {
    const auto& front = m_controller.classifier().front();
    m_held = front ? std::optional(front->subject) : std::nullopt;
}

void VerdictController::correct(const QString& modeID) {
    if (const auto subject = std::exchange(m_held, {}))
        m_controller.drift().correct(*subject, modeID.isEmpty() ? std::nullopt : std::optional(modeID));
}

} // namespace fendrel
