#include "UI/Settings/LookEditor.h"

#include "App/AppController.h"

#include <QCoreApplication>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

LookEditor::LookEditor(AppController& controller) : m_controller(controller) {
    connect(&controller.preferences(), &Preferences::changed, this, &LookEditor::changed);
    connect(&controller, &AppController::surroundingsChanged, this, &LookEditor::changed);
}

bool LookEditor::isOpen() const {
    return m_controller.preferences().editingDark().has_value();
}

void LookEditor::setOpen(bool open) {
    Preferences& preferences = m_controller.preferences();
    if (open == isOpen())
        return;
    if (open)
        preferences.setEditingDark(preferences.systemIsDark());
    else
        preferences.setEditingDark({});
}

bool LookEditor::isDark() const {
    return m_controller.preferences().showsDark();
}

void LookEditor::setDark(bool dark) {
    if (isOpen())
        m_controller.preferences().setEditingDark(dark);
}

const DockAppearance& LookEditor::look() const {
    return m_controller.preferences().appearance();
}

bool LookEditor::isReadable() const {
    return look().contrast(look().text()) >= readableContrast;
}

int LookEditor::preset() const {
    const auto& all = DockAppearance::presets();
    const auto found = std::ranges::find(all, look(), &DockAppearance::Preset::look);
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

QVariantList LookEditor::presets() const {
    QVariantList list;
    for (const DockAppearance::Preset& preset : DockAppearance::presets())
        list.append(QVariantMap{{u"label"_s, QCoreApplication::translate("DockAppearance", preset.name.toUtf8())},
                                {u"look"_s, QVariant::fromValue(preset.look)}});
    return list;
}

bool LookEditor::isBlended() const {
    return m_controller.platform().panels->hasTransparency();
}

bool LookEditor::canBlur() const {
    return m_controller.platform().panels->canBlur();
}

void LookEditor::choosePreset(int index) {
    const auto& all = DockAppearance::presets();
    if (index >= 0 && index < all.size())
        m_controller.preferences().setAppearance(all[index].look);
}

double LookEditor::least(const QString& field) const {
    return DockAppearance::range(field.toLatin1()).least;
}

double LookEditor::most(const QString& field) const {
    return DockAppearance::range(field.toLatin1()).most;
}

void LookEditor::move(const QString& field, double value) {
    DockAppearance changed = look();
    if (changed.set(field.toLatin1(), value) && changed != look())
        m_controller.preferences().setAppearance(changed, SettingsStore::Urgency::relaxed);
}

void LookEditor::moveBackground(const QColor& color) {
    DockAppearance changed = look();
    changed.background = color.rgb();
    changed.isDark = wantsLightText(color);
    if (color.isValid() && changed != look())
        m_controller.preferences().setAppearance(changed, SettingsStore::Urgency::relaxed);
}

void LookEditor::keep() {
    m_controller.preferences().setAppearance(look());
}

void LookEditor::setBlur(bool on) {
    DockAppearance changed = look();
    changed.blur = on;
    m_controller.preferences().setAppearance(changed);
}

} // namespace fendrel
