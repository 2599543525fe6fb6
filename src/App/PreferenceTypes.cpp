#include "App/PreferenceTypes.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace fendrel {

using namespace Qt::StringLiterals;

QString modifierSymbols(int modifiers) {
    QString symbols;
    if (modifiers & modifier::control)
        symbols += u'⌃';
    if (modifiers & modifier::option)
        symbols += u'⌥';
    if (modifiers & modifier::shift)
        symbols += u'⇧';
    if (modifiers & modifier::command)
        symbols += u'⌘';
    return symbols;
}

QByteArray toJson(const std::optional<Shortcut>& shortcut) {
    if (!shortcut)
        return "null";
    const QJsonObject object{
        {u"keyCode"_s, shortcut->keyCode}, {u"modifiers"_s, shortcut->modifiers}, {u"key"_s, shortcut->key}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<Shortcut> shortcutFromJson(const QByteArray& json) {
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const QJsonValue keyCode = object[u"keyCode"];
    const QJsonValue modifiers = object[u"modifiers"];
    const QJsonValue key = object[u"key"];
    const auto isInteger = [](const QJsonValue& value) {
        return value.isDouble() && value.toInt() == value.toDouble();
    };
    if (!isInteger(keyCode) || !isInteger(modifiers) || !key.isString())
        return {};
    return Shortcut{.keyCode = keyCode.toInt(), .modifiers = modifiers.toInt(), .key = key.toString()};
}

} // namespace fendrel
