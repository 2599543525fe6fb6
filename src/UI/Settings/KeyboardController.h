#pragma once

#include "App/HotKeyPlan.h"
#include "Base/Handle.h"

#include <QObject>
#include <QVariantList>
#include <QVariantMap>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The hot keys as the settings show and record them. Settings are called by their names in the preferences.
class KeyboardController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// For each setting { caps, words, problem }: what is printed on the keys, the same to be read out, and what stands
    /// in the way.
    Q_PROPERTY(QVariantMap states READ states NOTIFY changed)
    /// What can be held with digits: { modifiers, label }.
    Q_PROPERTY(QVariantList choices READ choices NOTIFY changed)
    Q_PROPERTY(bool isRecording READ isRecording NOTIFY recordingChanged)

public:
    explicit KeyboardController(AppController& controller);

    QVariantMap states() const;
    QVariantList choices() const;
    bool isRecording() const { return m_isRecording; }

    /// While somebody chooses a combination, the hot keys do nothing: they can be pressed to be chosen.
    Q_INVOKABLE void startRecording();
    Q_INVOKABLE void stopRecording();
    /// Takes the combination of a key event of the toolkit. False when it is none that a hot key can be.
    Q_INVOKABLE bool record(const QString& setting, int modifiers, quint32 nativeScanCode);
    Q_INVOKABLE void clear(const QString& setting);
    Q_INVOKABLE void retry();                              ///< hot keys that another program held
    Q_INVOKABLE QStringList heldCaps(int modifiers) const; ///< of the toolkit's modifiers

Q_SIGNALS:
    void changed();
    void recordingChanged();

private:
    void store(const QString& setting, const std::optional<Shortcut>& shortcut);
    QVariantMap shortcutState(const std::optional<Shortcut>& shortcut, HotKeyAction::Kind kind) const;
    QVariantMap digitState(int modifiers, HotKeyAction::Kind kind) const;
    QString problem(HotKeyAction::Kind kind) const;

    AppController& m_controller;
    Handle m_pause;
    bool m_isRecording = false;
};

} // namespace fendrel
