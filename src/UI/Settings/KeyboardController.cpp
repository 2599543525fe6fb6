#include "UI/Settings/KeyboardController.h"

#include "App/AppController.h"
#include "App/KeyCodes.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace fendrel {

using namespace Qt::StringLiterals;
using Kind = HotKeyAction::Kind;

namespace {

QString waitsForModifier() {
    return KeyboardController::tr("It needs Control, Alt or Super, or nobody could type this key.");
}

int maskOf(int modifiers) {
    const Qt::KeyboardModifiers held(modifiers);
    return (held.testFlag(Qt::ControlModifier) ? modifier::control : 0) |
           (held.testFlag(Qt::AltModifier) ? modifier::option : 0) |
           (held.testFlag(Qt::ShiftModifier) ? modifier::shift : 0) |
           (held.testFlag(Qt::MetaModifier) ? modifier::command : 0);
}

QStringList caps(int modifiers, const QString& key) {
    QStringList caps;
    for (const QChar symbol : modifierSymbols(modifiers))
        caps.append(symbol);
    if (!key.isEmpty())
        caps.append(key);
    return caps;
}

QString words(int modifiers, const QString& key) {
    QStringList words;
    if (modifiers & modifier::control)
        words.append(KeyboardController::tr("Control"));
    if (modifiers & modifier::option)
        words.append(KeyboardController::tr("Alt"));
    if (modifiers & modifier::shift)
        words.append(KeyboardController::tr("Shift"));
    if (modifiers & modifier::command)
        words.append(KeyboardController::tr("Super"));
    if (!key.isEmpty())
        words.append(key);
    return words.join(u" + "_s);
}

QString holder(const HotKeyAction& action) {
    switch (action.kind) {
    case Kind::switchMode:
        return KeyboardController::tr("This combination switches to mode %1.").arg(action.index + 1);
    case Kind::toggleFocus:
        return KeyboardController::tr("This combination starts and stops focus.");
    case Kind::focusDock:
        return KeyboardController::tr("This combination leads to the dock.");
    case Kind::openApp:
        return KeyboardController::tr("This combination opens application %1.").arg(action.index + 1);
    }
    return {};
}

} // namespace

KeyboardController::KeyboardController(AppController& controller) : m_controller(controller) {
    connect(&controller.preferences(), &Preferences::changed, this, &KeyboardController::changed);
    connect(&controller.hotKeys(), &HotKeyRegistry::changed, this, &KeyboardController::changed);
}

QVariantMap KeyboardController::states() const {
    const Preferences& preferences = m_controller.preferences();
    QVariantMap apps = digitState(preferences.appModifiers(), Kind::openApp);
    if (preferences.appModifiers() != 0 && preferences.appModifiers() == preferences.modeModifiers())
        apps[u"problem"_s] = tr("The modes have these keys, so the applications have none.");
    return {{u"focusShortcut"_s, shortcutState(preferences.focusShortcut(), Kind::toggleFocus)},
            {u"dockShortcut"_s, shortcutState(preferences.dockShortcut(), Kind::focusDock)},
            {u"modeModifiers"_s, digitState(preferences.modeModifiers(), Kind::switchMode)},
            {u"appModifiers"_s, apps}};
}

QVariantList KeyboardController::choices() const {
    using namespace modifier;
    QList<int> masks{0, option, control | option, control | shift, option | shift, command};
    const Preferences& preferences = m_controller.preferences();
    for (const int other : {preferences.modeModifiers(), preferences.appModifiers()}) {
        if (!masks.contains(other))
            masks.append(other); // somebody set it elsewhere
    }
    QVariantList list;
    for (const int mask : std::as_const(masks))
        list.append(QVariantMap{{u"modifiers"_s, mask}, {u"label"_s, mask == 0 ? tr("Off") : modifierSymbols(mask)}});
    return list;
}

void KeyboardController::startRecording() {
    if (std::exchange(m_isRecording, true))
        return;
    m_pause = m_controller.hotKeys().pause();
    Q_EMIT recordingChanged();
}

void KeyboardController::stopRecording() {
    if (!std::exchange(m_isRecording, false))
        return;
    m_pause.reset();
    Q_EMIT recordingChanged();
}

bool KeyboardController::record(const QString& setting, int modifiers, quint32 nativeScanCode) {
    const QString key = m_controller.platform().hotKeys->label(nativeScanCode);
    const int mask = maskOf(modifiers);
    if (key.isEmpty() || getsInTheWay(mask, key))
        return false;
    store(setting, Shortcut{.keyCode = keyCode(key), .modifiers = mask, .key = key});
    return true;
}

void KeyboardController::clear(const QString& setting) {
    store(setting, {});
}

void KeyboardController::retry() {
    m_controller.hotKeys().retry();
}

QStringList KeyboardController::heldCaps(int modifiers) const {
    return caps(maskOf(modifiers), {});
}

void KeyboardController::store(const QString& setting, const std::optional<Shortcut>& shortcut) {
    if (setting == u"focusShortcut")
        m_controller.preferences().setFocusShortcut(shortcut);
    else if (setting == u"dockShortcut")
        m_controller.preferences().setDockShortcut(shortcut);
}

QVariantMap KeyboardController::shortcutState(const std::optional<Shortcut>& shortcut, Kind kind) const {
    if (!shortcut)
        return {{u"caps"_s, QStringList()}, {u"words"_s, QString()}, {u"problem"_s, QString()}};
    const QString waits = getsInTheWay(shortcut->modifiers, shortcut->key) ? waitsForModifier() : problem(kind);
    return {{u"caps"_s, caps(shortcut->modifiers, shortcut->key)},
            {u"words"_s, words(shortcut->modifiers, shortcut->key)},
            {u"problem"_s, waits}};
}

QVariantMap KeyboardController::digitState(int modifiers, Kind kind) const {
    const bool waits = modifiers != 0 && getsInTheWay(modifiers, u"1"_s);
    return {{u"caps"_s, caps(modifiers, {})},
            {u"words"_s, words(modifiers, {})},
            {u"problem"_s, waits ? waitsForModifier() : problem(kind)}};
}

/// What stands in the way of hot keys of this kind; empty while nothing does.
QString KeyboardController::problem(Kind kind) const {
    const HotKeyRegistry& hotKeys = m_controller.hotKeys();
    for (const auto& clash : hotKeys.clashes()) {
        if (clash.action.kind == kind)
            return holder(clash.winner);
    }
    QStringList labels;
    for (const HotKey& refused : hotKeys.refused()) {
        if (refused.action.kind == kind)
            labels.append(modifierSymbols(refused.modifiers) + refused.key);
    }
    if (labels.isEmpty())
        return {};
    return tr("Taken by another program, or not on this keyboard: %1.").arg(QLocale().createSeparatedList(labels));
}

} // namespace fendrel
