#include "App/HotKeyPlan.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using Kind = HotKeyAction::Kind;

namespace {

constexpr int digits = 9;

QList<HotKey> digitKeys(Kind kind, int modifiers, int count) {
    QList<HotKey> keys;
    if (getsInTheWay(modifiers, u"1"_s))
        return keys;
    for (int index = 0; index < std::min(count, digits); ++index)
        keys.append(
            {.action = {.kind = kind, .index = index}, .modifiers = modifiers, .key = QString::number(index + 1)});
    return keys;
}

QList<HotKey> singleKey(Kind kind, const std::optional<Shortcut>& shortcut) {
    if (!shortcut || shortcut->key.isEmpty() || getsInTheWay(shortcut->modifiers, shortcut->key))
        return {};
    return {{.action = {.kind = kind}, .modifiers = shortcut->modifiers, .key = shortcut->key}};
}

bool isFunctionKey(const QString& key) {
    bool isNumber = false;
    const int number = QStringView(key).mid(1).toInt(&isNumber);
    return key.startsWith(u'F', Qt::CaseInsensitive) && isNumber && number >= 1 && number <= 35;
}

} // namespace

HotKeyPlan hotKeyPlan(const HotKeyWishes& wishes) {
    const int appModifiers = wishes.appModifiers == wishes.modeModifiers ? 0 : wishes.appModifiers;
    HotKeyPlan plan;
    for (const QList<HotKey>& wished :
         {digitKeys(Kind::switchMode, wishes.modeModifiers, wishes.modes), singleKey(Kind::toggleFocus, wishes.focus),
          singleKey(Kind::focusDock, wishes.dock), digitKeys(Kind::openApp, appModifiers, wishes.apps)}) {
        for (const HotKey& hotKey : wished) {
            const auto winner =
                std::ranges::find_if(plan.keys, [&](const HotKey& other) { return other.hasSameKeys(hotKey); });
            if (winner == plan.keys.end())
                plan.keys.append(hotKey);
            else
                plan.clashes.append({.action = hotKey.action, .winner = winner->action});
        }
    }
    return plan;
}

bool getsInTheWay(int modifiers, const QString& key) {
    return (modifiers & ~modifier::shift) == 0 && !isFunctionKey(key);
}

} // namespace fendrel
