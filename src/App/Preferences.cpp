#include "App/Preferences.h"

#include "Base/EnumNames.h"
#include "Ports/SystemLook.h"

#include <QThread>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

template<class Enumeration>
Enumeration readEnum(const SettingsStore& store, const QString& key, Enumeration fallback) {
    return enumValue<Enumeration>(store.read<QString>(key).value_or(QString())).value_or(fallback);
}

int readInteger(const SettingsStore& store, const QString& key, int fallback) {
    return static_cast<int>(store.read<qint64>(key).value_or(fallback));
}

// Only a stored boolean turns off what is on by default.
bool readOnByDefault(const SettingsStore& store, const QString& key) {
    return store.read<bool>(key).value_or(true);
}

std::optional<Shortcut> readShortcut(const SettingsStore& store, const QString& key, const Shortcut& fallback) {
    // A user who cleared the hot key keeps it off; only a key that was never written yields the default.
    if (!store.value(key))
        return fallback;
    return shortcutFromJson(store.read<QByteArray>(key).value_or(QByteArray()));
}

DockAppearance readAppearance(const SettingsStore& store, const QString& key, const DockAppearance& fallback) {
    return dockAppearanceFromJson(store.read<QByteArray>(key).value_or(QByteArray())).value_or(fallback);
}

std::optional<QString> digitShortcut(int modifiers, int index) {
    if (modifiers == 0 || index < 0 || index > 8)
        return {};
    return modifierSymbols(modifiers) + QString::number(index + 1);
}

} // namespace

Preferences::Preferences(SettingsStore& store, SystemLook& look)
    : m_store(store),
      m_look(look),
      m_dockSize{u"dockSize"_s, readEnum(store, u"dockSize"_s, DockSize::medium)},
      m_autoHide{u"autoHide"_s, store.flag(u"autoHide"_s)},
      m_magnify{u"magnify"_s, readOnByDefault(store, u"magnify"_s)},
      m_focusGlow{u"focusGlow"_s, store.flag(u"focusGlow"_s)},
      m_sounds{u"sounds"_s, store.flag(u"sounds"_s)},
      m_focusShortcut{u"focusShortcut"_s, readShortcut(store, u"focusShortcut"_s,
                                                     {.keyCode = 3, .modifiers = modifier::option, .key = u"F"_s})},
      m_dockShortcut{u"dockShortcut"_s,
                     readShortcut(store, u"dockShortcut"_s,
                                  {.keyCode = 99, .modifiers = modifier::control, .key = u"F3"_s})},
      m_modeModifiers{u"modeModifiers"_s, readInteger(store, u"modeModifiers"_s, modifier::option)},
      m_appModifiers{u"appModifiers"_s, readInteger(store, u"appModifiers"_s, 0)},
      m_clickToHide{u"clickToHide"_s, store.flag(u"clickToHide"_s)},
      m_tidyOnSwitch{u"tidyOnSwitch"_s, store.flag(u"tidyOnSwitch"_s)},
      m_claudePings{u"claudePings"_s, readOnByDefault(store, u"claudePings"_s)},
      m_crashReports{u"crashReports"_s, store.flag(u"crashReports"_s)},
      m_breakThrough{u"breakThrough"_s, store.read<QString>(u"breakThrough"_s).value_or(u"urgent, asap"_s)},
      m_strictness{u"strictness"_s, readEnum(store, u"strictness"_s, Strictness::balanced)},
      m_dockPosition{u"dockPosition"_s, readEnum(store, u"dockPosition"_s, DockPosition::bottom)},
      m_dockDisplay{u"dockDisplay"_s, readEnum(store, u"dockDisplay"_s, DockDisplay::main)},
      m_lightAppearance{u"dockAppearance"_s, readAppearance(store, u"dockAppearance"_s, {})},
      m_darkAppearance{u"dockAppearanceDark"_s,
                       readAppearance(store, u"dockAppearanceDark"_s, DockAppearance::preset(u"Midnight"_s).value())},
      m_matchSystem{u"matchSystemAppearance"_s, store.flag(u"matchSystemAppearance"_s)},
      m_modelServer{u"modelServer"_s, store.read<QString>(u"modelServer"_s).value_or(QString())},
      m_modelName{u"modelName"_s, store.read<QString>(u"modelName"_s).value_or(QString())},
      m_quietBanners{u"quietBanners"_s, store.flag(u"quietBanners"_s)},
      m_passCritical{u"passCritical"_s, store.flag(u"passCritical"_s)},
      m_systemIsDark(look.isDark()) {
    Q_ASSERT(QThread::currentThread() == thread());
    look.onChanged = [this] {
        m_systemIsDark = m_look.isDark();
        Q_EMIT changed();
    };
}

Preferences::~Preferences() {
    m_look.onChanged = [] {};
}

QStringList Preferences::breakThroughWords() const {
    QStringList words;
    for (const QString& word : breakThrough().split(u',')) {
        if (const QString trimmed = word.trimmed(); !trimmed.isEmpty())
            words.append(trimmed);
    }
    return words;
}

void Preferences::setEditingDark(std::optional<bool> editing) {
    if (m_editingDark == editing)
        return;
    m_editingDark = editing;
    Q_EMIT changed();
}

bool Preferences::showsDark() const {
    return matchSystem() && m_editingDark.value_or(m_systemIsDark);
}

void Preferences::setAppearance(const DockAppearance& look) {
    change(showsDark() ? m_darkAppearance : m_lightAppearance, look);
}

std::optional<QString> Preferences::modeShortcut(int index) const {
    return digitShortcut(modeModifiers(), index);
}

std::optional<QString> Preferences::appShortcut(int index) const {
    // Where both sets of hot keys ask for the same keys, the modes get them.
    if (appModifiers() == modeModifiers())
        return {};
    return digitShortcut(appModifiers(), index);
}

} // namespace fendrel
