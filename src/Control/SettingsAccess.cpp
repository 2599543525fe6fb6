#include "Control/SettingsAccess.h"

#include "App/Preferences.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaProperty>

#include <algorithm>

namespace fendrel::control::SettingsAccess {

using namespace Qt::StringLiterals;

namespace {

/// The hot keys, which are no properties.
struct ShortcutSetting {
    QString name{};
    const std::optional<Shortcut>& (Preferences::*get)() const {};
    void (Preferences::*set)(const std::optional<Shortcut>&){};
};

const QList<ShortcutSetting> shortcuts{
    {u"focusShortcut"_s, &Preferences::focusShortcut, &Preferences::setFocusShortcut},
    {u"dockShortcut"_s, &Preferences::dockShortcut, &Preferences::setDockShortcut}};

const ShortcutSetting* shortcutSetting(const QString& name) {
    const auto found = std::ranges::find(shortcuts, name, &ShortcutSetting::name);
    return found == shortcuts.end() ? nullptr : &*found;
}

QJsonValue jsonValue(const QByteArray& json) {
    return QJsonDocument::fromJson(json).object();
}

QList<QMetaProperty> properties() {
    QList<QMetaProperty> list;
    const QMetaObject& meta = Preferences::staticMetaObject;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        if (meta.property(index).isWritable())
            list.append(meta.property(index));
    }
    return list;
}

std::optional<QMetaProperty> property(const QString& name) {
    const auto all = properties();
    const auto found = std::ranges::find_if(
        all, [&](const QMetaProperty& candidate) { return name == QLatin1StringView(candidate.name()); });
    if (found == all.end())
        return {};
    return *found;
}

std::optional<bool> boolean(const QString& text) {
    if (text == "true"_L1 || text == "on"_L1)
        return true;
    if (text == "false"_L1 || text == "off"_L1)
        return false;
    return {};
}

std::optional<int> modifierMask(const QString& text) {
    constexpr int all = modifier::command | modifier::shift | modifier::option | modifier::control;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber)
        return (number & ~all) == 0 ? std::optional(number) : std::nullopt;
    int mask = 0;
    for (const QString& word : text.split(u'+')) {
        if (word == "command"_L1 || word == "super"_L1)
            mask |= modifier::command;
        else if (word == "shift"_L1)
            mask |= modifier::shift;
        else if (word == "option"_L1 || word == "alt"_L1)
            mask |= modifier::option;
        else if (word == "control"_L1)
            mask |= modifier::control;
        else
            return {};
    }
    return mask;
}

std::optional<DockAppearance> look(const QString& text) {
    const auto preset = DockAppearance::preset(text);
    return preset ? preset : dockAppearanceFromJson(text.toUtf8());
}

} // namespace

QStringList names(const Preferences&) {
    QStringList list;
    for (const ShortcutSetting& each : shortcuts)
        list.append(each.name);
    for (const QMetaProperty& candidate : properties())
        list.append(QString::fromLatin1(candidate.name()));
    list.sort();
    return list;
}

std::optional<QJsonValue> get(const Preferences& preferences, const QString& name) {
    if (const ShortcutSetting* setting = shortcutSetting(name)) {
        const auto& shortcut = (preferences.*setting->get)();
        return shortcut ? jsonValue(toJson(shortcut)) : QJsonValue();
    }
    const auto found = property(name);
    if (!found)
        return {};
    const QVariant value = found->read(&preferences);
    if (found->isEnumType())
        return QString::fromLatin1(found->enumerator().valueToKey(value.toInt()));
    if (value.metaType() == QMetaType::fromType<DockAppearance>())
        return jsonValue(toJson(value.value<DockAppearance>()));
    return QJsonValue::fromVariant(value);
}

std::optional<QString> set(Preferences& preferences, const QString& name, const QString& text) {
    const auto invalid = [&](const QString& expected) {
        return u"'%1' is no value for %2: %3 is expected"_s.arg(text, name, expected);
    };
    if (const ShortcutSetting* setting = shortcutSetting(name)) {
        const auto shortcut = shortcutFromJson(text.toUtf8());
        if (!shortcut && text != "none"_L1)
            return invalid(uR"({"keyCode": ..., "modifiers": ..., "key": "..."} or none)"_s);
        (preferences.*setting->set)(shortcut);
        return {};
    }
    const auto found = property(name);
    if (!found)
        return u"unknown setting '%1'"_s.arg(name);
    QVariant value;
    QString expected;
    if (found->isEnumType()) {
        const QMetaEnum choices = found->enumerator();
        QStringList words;
        for (int index = 0; index < choices.keyCount(); ++index)
            words.append(QString::fromLatin1(choices.key(index)));
        expected = u"one of "_s + words.join(u", ");
        if (words.contains(text))
            value = choices.keyToValue(text.toLatin1().constData());
    } else if (found->typeId() == QMetaType::Bool) {
        expected = u"true or false"_s;
        if (const auto on = boolean(text))
            value = *on;
    } else if (found->typeId() == QMetaType::Int) {
        expected = u"words such as control+option, or 0"_s;
        if (const auto mask = modifierMask(text))
            value = *mask;
    } else if (found->metaType() == QMetaType::fromType<DockAppearance>()) {
        expected = u"a JSON object or the name of a preset"_s;
        if (const auto chosen = look(text))
            value = QVariant::fromValue(*chosen);
    } else {
        value = text;
    }
    if (!value.isValid())
        return invalid(expected);
    found->write(&preferences, value);
    return {};
}

std::optional<QString> reset(Preferences& preferences, const QString& name) {
    if (!names(preferences).contains(name))
        return u"unknown setting '%1'"_s.arg(name);
    const QString shownLook = preferences.showsDark() ? u"darkAppearance"_s : u"lightAppearance"_s;
    preferences.reset({name == "appearance"_L1 ? shownLook : name});
    return {};
}

} // namespace fendrel::control::SettingsAccess
