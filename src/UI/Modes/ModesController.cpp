#include "UI/Modes/ModesController.h"

#include "App/AppController.h"

#include <QUuid>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

ModesController::ModesController(AppController& controller, AppIcons& icons)
    : m_controller(controller),
      m_list(controller),
      m_editor(controller, icons),
      m_dryRun(controller, icons),
      m_removal(controller.engine(), *controller.platform().clock) {
    connect(&controller.engine(), &ModeEngine::changed, this, &ModesController::changed);
    connect(&controller.preferences(), &Preferences::changed, this, &ModesController::looksChanged);
    connect(&m_removal, &ModeRemoval::changed, this, &ModesController::removedChanged);
}

QVariantList ModesController::templates() const {
    QVariantList list;
    for (const Mode& mode : m_controller.engine().catalog().templates) {
        if (!m_controller.engine().mode(mode.id)) {
            list.append(QVariantMap{
                {u"id"_s, mode.id}, {u"name"_s, mode.name}, {u"symbol"_s, mode.symbol}, {u"tint"_s, color(mode.tint)}});
        }
    }
    return list;
}

bool ModesController::canDelete() const {
    return m_controller.engine().modes().size() > 1;
}

QString ModesController::removedName() const {
    const Mode* mode = m_removal.removed();
    return mode ? mode->name : QString();
}

bool ModesController::isDark() const {
    return m_controller.preferences().systemIsDark();
}

void ModesController::openWindow(const QString& modeID) {
    m_controller.showModes(modeID);
}

void ModesController::add(const QString& templateID) {
    const ModeEngine& engine = m_controller.engine();
    const auto& templates = engine.catalog().templates;
    const auto found = std::ranges::find(templates, templateID, &Mode::id);
    if (found != templates.end()) {
        addBehind(engine.seeded(*found), engine.modes().size() - 1);
        return;
    }
    // A tint that no other mode has, as long as there is one.
    int tint = 0;
    while (tint < static_cast<int>(Tint::graphite) &&
           std::ranges::find(engine.modes(), static_cast<Tint>(tint), &Mode::tint) != engine.modes().end())
        ++tint;
    addBehind({.name = freeName(tr("New Mode")), .symbol = u"star"_s, .tint = static_cast<Tint>(tint)},
              engine.modes().size() - 1);
    Q_EMIT added();
}

void ModesController::duplicate(const QString& modeID) {
    const ModeEngine& engine = m_controller.engine();
    const Mode* mode = engine.mode(modeID);
    if (!mode)
        return;
    Mode copy = *mode;
    copy.id.clear();
    copy.name = freeName(tr("%1 Copy").arg(mode->name));
    addBehind(copy, mode - engine.modes().constData());
    Q_EMIT added();
}

void ModesController::addBehind(Mode mode, qsizetype position) {
    ModeEngine& engine = m_controller.engine();
    if (mode.id.isEmpty())
        mode.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    engine.addMode(mode);
    if (position + 2 < engine.modes().size())
        engine.moveModes({engine.modes().size() - 1}, position + 1);
    m_editor.edit(mode.id);
}

QString ModesController::freeName(const QString& name) const {
    const auto& modes = m_controller.engine().modes();
    QString candidate = name;
    for (int number = 2; std::ranges::find(modes, candidate, &Mode::name) != modes.end(); ++number)
        candidate = name + u' ' + QString::number(number);
    return candidate;
}

void ModesController::remove(const QString& modeID) {
    const auto& modes = m_controller.engine().modes();
    const auto found = std::ranges::find(modes, modeID, &Mode::id);
    if (found == modes.end() || !canDelete())
        return;
    const auto neighbour = found + 1 == modes.end() ? found - 1 : found + 1;
    if (m_editor.modeID() == modeID)
        m_editor.edit(QString(neighbour->id));
    m_removal.remove(QString(modeID));
}

void ModesController::undoRemove() {
    if (const auto modeID = m_removal.restore())
        m_editor.edit(*modeID);
}

void ModesController::move(int from, int to) {
    const int count = static_cast<int>(m_controller.engine().modes().size());
    const int target = std::clamp(to, 0, count - 1);
    if (from < 0 || from >= count || from == target)
        return;
    m_controller.engine().moveModes({from}, target > from ? target + 1 : target);
}

} // namespace fendrel
