#include "App/Preferences.h"

#include "Base/EnumNames.h"
#include "Ports/SystemLook.h"

#include <QThread>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

// How each kind of setting is read: a function of the store and the key.

template<class Enumeration>
auto choice(Enumeration fallback) {
    return [fallback](const SettingsStore& store, const QString& key) {
        return enumValue<Enumeration>(store.read<QString>(key).value_or(QString())).value_or(fallback);
    };
}

auto integer(int fallback) {
    return [fallback](const SettingsStore& store, const QString& key) {
        return static_cast<int>(store.read<qint64>(key).value_or(fallback));
    };
}

auto text(const QString& fallback = {}) {
    return [fallback](const SettingsStore& store, const QString& key) {
        return store.read<QString>(key).value_or(fallback);
    };
}

auto offByDefault() {
    return [](const SettingsStore& store, const QString& key) { return store.flag(key); };
}

// Only a stored boolean turns off what is on by default.
auto onByDefault() {
    return [](const SettingsStore& store, const QString& key) { return store.read<bool>(key).value_or(true); };
}

// A user who cleared the hot key keeps it off; only a key that was never written yields the default.
auto hotKey(const Shortcut& fallback) {
    return [fallback](const SettingsStore& store, const QString& key) -> std::optional<Shortcut> {
        if (!store.value(key))
            return fallback;
        return shortcutFromJson(store.read<QByteArray>(key).value_or(QByteArray()));
    };
}

auto look(const DockAppearance& fallback) {
    return [fallback](const SettingsStore& store, const QString& key) {
        return dockAppearanceFromJson(store.read<QByteArray>(key).value_or(QByteArray())).value_or(fallback);
    };
}

std::optional<QString> digitShortcut(int modifiers, int index) {
    if (modifiers == 0 || index < 0 || index > 8)
        return {};
    return modifierSymbols(modifiers) + QString::number(index + 1);
}

} // namespace

Preferences::Preferences(SettingsStore& store, SystemLook& systemLook)
    : m_store(store),
      m_look(systemLook),
      m_dockSize(*this, u"dockSize"_s, choice(DockSize::medium)),
      m_autoHide(*this, u"autoHide"_s, offByDefault()),
      m_magnify(*this, u"magnify"_s, onByDefault()),
      m_focusGlow(*this, u"focusGlow"_s, offByDefault()),
      m_sounds(*this, u"sounds"_s, offByDefault()),
      m_focusShortcut(*this, u"focusShortcut"_s, hotKey({.keyCode = 3, .modifiers = modifier::option, .key = u"F"_s})),
      m_dockShortcut(*this, u"dockShortcut"_s, hotKey({.keyCode = 99, .modifiers = modifier::control, .key = u"F3"_s})),
      m_modeModifiers(*this, u"modeModifiers"_s, integer(modifier::option)),
      m_appModifiers(*this, u"appModifiers"_s, integer(0)),
      m_clickToHide(*this, u"clickToHide"_s, offByDefault()),
      m_tidyOnSwitch(*this, u"tidyOnSwitch"_s, offByDefault()),
      m_claudePings(*this, u"claudePings"_s, onByDefault()),
      m_crashReports(*this, u"crashReports"_s, offByDefault()),
      m_breakThrough(*this, u"breakThrough"_s, text(u"urgent, asap"_s)),
      m_strictness(*this, u"strictness"_s, choice(Strictness::balanced)),
      m_dockPosition(*this, u"dockPosition"_s, choice(DockPosition::bottom)),
      m_dockDisplay(*this, u"dockDisplay"_s, choice(DockDisplay::main)),
      m_lightAppearance(*this, u"lightAppearance"_s, look({}), u"dockAppearance"_s),
      m_darkAppearance(*this, u"darkAppearance"_s, look(DockAppearance::preset(u"Midnight"_s).value()),
                       u"dockAppearanceDark"_s),
      m_matchSystem(*this, u"matchSystem"_s, offByDefault(), u"matchSystemAppearance"_s),
      m_modelServer(*this, u"modelServer"_s, text()),
      m_modelName(*this, u"modelName"_s, text()),
      m_quietBanners(*this, u"quietBanners"_s, offByDefault()),
      m_passCritical(*this, u"passCritical"_s, offByDefault()),
      m_systemIsDark(systemLook.isDark()) {
    Q_ASSERT(QThread::currentThread() == thread());
    m_look.onChanged = [this] {
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

void Preferences::setAppearance(const DockAppearance& look, SettingsStore::Urgency urgency) {
    change(showsDark() ? m_darkAppearance : m_lightAppearance, look, urgency);
}

void Preferences::reset(const QStringList& names) {
    bool isNew = false;
    for (const Entry& entry : m_entries) {
        if (!names.contains(entry.name))
            continue;
        m_store.remove(entry.key);
        isNew |= entry.read();
    }
    if (isNew)
        Q_EMIT changed();
}

QHash<QString, StoredValue> Preferences::values() const {
    QHash<QString, StoredValue> values;
    for (const Entry& entry : m_entries)
        values.insert(entry.key, entry.value());
    return values;
}

void Preferences::reload() {
    bool isNew = false;
    for (const Entry& entry : m_entries)
        isNew |= entry.read();
    if (isNew)
        Q_EMIT changed();
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
