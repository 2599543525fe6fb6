#include "UI/Messages/MessagesController.h"

#include "App/AppController.h"
#include "UI/Countdown.h"
#include "UI/Images/AppIcons.h"

#include <algorithm>

namespace fendrel {

MessagesController::MessagesController(AppController& controller, AppIcons& icons)
    : m_controller(controller), m_icons(icons) {
    connect(&controller.messages(), &HeldMessages::changed, this, &MessagesController::update);
    connect(&controller.engine(), &ModeEngine::changed, this, &MessagesController::updateWait);
    connect(&controller.focus(), &FocusSession::changed, this, &MessagesController::updateWait);
    connect(&controller.preferences(), &Preferences::changed, this, &MessagesController::updateWait);
    connect(&controller.gate(), &Gate::changed, this,
            [this] { m_controller.messages().setHidden(m_controller.gate().blocked().has_value()); });
}

bool MessagesController::hasAlert() const {
    return m_controller.messages().alert().has_value();
}

QString MessagesController::listTitle() const {
    return (m_isDigest ? tr("While you were in %1") : tr("Held for %1")).arg(m_listMode.name);
}

QString MessagesController::listDetail() const {
    const int count = m_list.rowCount();
    return tr("%n message(s)", nullptr, count);
}

void MessagesController::showHeld(const QString& modeID, bool isByKeyboard) {
    m_heldFor = modeID;
    update();
    if (isByKeyboard)
        Q_EMIT keyboardWanted();
}

void MessagesController::go() {
    m_controller.messages().go();
}

void MessagesController::dismissAlert() {
    m_controller.messages().dismissAlert();
}

void MessagesController::dismissList() {
    if (m_isDigest) {
        m_controller.messages().dismissDigest();
    } else {
        m_heldFor.clear();
        update();
    }
}

void MessagesController::open(int row) {
    if (row >= 0 && row < m_messages.size())
        m_controller.messages().open(HeldMessage(m_messages[row]));
}

void MessagesController::setHovered(bool isHovered) {
    m_controller.messages().setHovered(isHovered);
}

void MessagesController::update() {
    takeAlert();
    takeList();
    Q_EMIT changed();
}

MessagesModel::Row MessagesController::row(const HeldMessage& message, const std::optional<QString>& why) const {
    auto row = messageRow(message, m_controller.platform().clock->now());
    // The model may know that something is urgent and not say why.
    if (why)
        row.why = why->isEmpty() ? tr("Looks urgent") : why->simplified();
    row.icon = m_icons.source(message.bundleID);
    row.appName = m_controller.workspace().displayName(message.bundleID);
    return row;
}

void MessagesController::takeAlert() {
    const auto& alert = m_controller.messages().alert();
    if (!alert)
        return;
    m_alert = row(alert->message, alert->why);
    m_alertMode = alert->mode;
    m_alertWait = waitText(alert->mode);
}

/// What going there costs now, which need not be what it was when the message came.
QString MessagesController::waitText(const Mode& mode) const {
    const ModeEngine& engine = m_controller.engine();
    const Mode* freshest = engine.mode(mode.id);
    const Seconds wait = engine.entryDelay(freshest ? *freshest : mode);
    return wait > Seconds{} ? tr("%1 wait").arg(remainingText(wait)) : tr("at once");
}

void MessagesController::updateWait() {
    const auto& alert = m_controller.messages().alert();
    if (!alert || waitText(alert->mode) == m_alertWait)
        return;
    takeAlert();
    Q_EMIT changed();
}

/// What is held for the mode that the user looks at, newest first.
std::optional<MessageDigest> MessagesController::heldList() const {
    const HeldMessages& messages = m_controller.messages();
    const Mode* mode = m_controller.engine().mode(m_heldFor);
    MessageDigest list{.messages = messages.held().value(m_heldFor), .urgent = messages.urgent()};
    if (!mode || list.messages.isEmpty())
        return {};
    list.mode = *mode;
    std::ranges::reverse(list.messages);
    return list;
}

void MessagesController::takeList() {
    const auto held = heldList();
    if (!held)
        m_heldFor.clear(); // what is held later does not open the card by itself
    const auto& list = held ? held : m_controller.messages().digest();
    m_messages = list ? list->messages : QList<HeldMessage>();
    if (!list)
        return;
    m_isDigest = !held;
    m_listMode = list->mode;
    QList<MessagesModel::Row> rows;
    for (const HeldMessage& message : std::as_const(m_messages)) {
        const auto why = list->urgent.constFind(message.id);
        rows.append(row(message, why == list->urgent.cend() ? std::nullopt : std::optional(*why)));
    }
    m_list.show(rows);
}

} // namespace fendrel
