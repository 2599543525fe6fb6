#pragma once

#include "App/DockAppearance.h"
#include "App/PreferenceTypes.h"
#include "Base/EnumNames.h"
#include "Ports/SettingsStore.h"

#include <QObject>

#include <functional>
#include <optional>
#include <utility>

namespace fendrel {

class SystemLook;

/// The user's settings. Each is read once at construction and stored the moment it is set. Main thread.
/// All properties share one change signal: settings change rarely, and whoever shows one shows it again cheaply.
class Preferences : public QObject {
    Q_OBJECT
    Q_PROPERTY(fendrel::preferences::DockSize dockSize READ dockSize WRITE setDockSize NOTIFY changed)
    Q_PROPERTY(bool autoHide READ autoHide WRITE setAutoHide NOTIFY changed)
    Q_PROPERTY(bool magnify READ magnify WRITE setMagnify NOTIFY changed)
    Q_PROPERTY(bool focusGlow READ focusGlow WRITE setFocusGlow NOTIFY changed)
    Q_PROPERTY(bool sounds READ sounds WRITE setSounds NOTIFY changed)
    Q_PROPERTY(int modeModifiers READ modeModifiers WRITE setModeModifiers NOTIFY changed)
    Q_PROPERTY(int appModifiers READ appModifiers WRITE setAppModifiers NOTIFY changed)
    Q_PROPERTY(bool clickToHide READ clickToHide WRITE setClickToHide NOTIFY changed)
    Q_PROPERTY(bool tidyOnSwitch READ tidyOnSwitch WRITE setTidyOnSwitch NOTIFY changed)
    Q_PROPERTY(bool claudePings READ claudePings WRITE setClaudePings NOTIFY changed)
    Q_PROPERTY(bool crashReports READ crashReports WRITE setCrashReports NOTIFY changed)
    Q_PROPERTY(QString breakThrough READ breakThrough WRITE setBreakThrough NOTIFY changed)
    Q_PROPERTY(fendrel::preferences::Strictness strictness READ strictness WRITE setStrictness NOTIFY changed)
    Q_PROPERTY(fendrel::preferences::DockPosition dockPosition READ dockPosition WRITE setDockPosition NOTIFY changed)
    Q_PROPERTY(fendrel::preferences::DockDisplay dockDisplay READ dockDisplay WRITE setDockDisplay NOTIFY changed)
    Q_PROPERTY(QString modelServer READ modelServer WRITE setModelServer NOTIFY changed)
    Q_PROPERTY(QString modelName READ modelName WRITE setModelName NOTIFY changed)
    Q_PROPERTY(bool quietBanners READ quietBanners WRITE setQuietBanners NOTIFY changed)
    Q_PROPERTY(bool passCritical READ passCritical WRITE setPassCritical NOTIFY changed)
    Q_PROPERTY(bool matchSystem READ matchSystem WRITE setMatchSystem NOTIFY changed)
    Q_PROPERTY(bool showsDark READ showsDark NOTIFY changed)
    Q_PROPERTY(fendrel::DockAppearance appearance READ appearance WRITE setAppearance NOTIFY changed)

public:
    Preferences(SettingsStore& store, SystemLook& systemLook);
    ~Preferences() override;

    DockSize dockSize() const { return m_dockSize.value; }
    void setDockSize(DockSize size) { change(m_dockSize, size); }
    bool autoHide() const { return m_autoHide.value; }
    void setAutoHide(bool on) { change(m_autoHide, on); }
    bool magnify() const { return m_magnify.value; }
    void setMagnify(bool on) { change(m_magnify, on); }
    bool focusGlow() const { return m_focusGlow.value; }
    void setFocusGlow(bool on) { change(m_focusGlow, on); }
    bool sounds() const { return m_sounds.value; }
    void setSounds(bool on) { change(m_sounds, on); }
    const std::optional<Shortcut>& focusShortcut() const { return m_focusShortcut.value; }
    void setFocusShortcut(const std::optional<Shortcut>& shortcut) { change(m_focusShortcut, shortcut); }
    /// The hot key that leads the keyboard to the dock.
    const std::optional<Shortcut>& dockShortcut() const { return m_dockShortcut.value; }
    void setDockShortcut(const std::optional<Shortcut>& shortcut) { change(m_dockShortcut, shortcut); }
    int modeModifiers() const { return m_modeModifiers.value; }
    void setModeModifiers(int modifiers) { change(m_modeModifiers, modifiers); }
    int appModifiers() const { return m_appModifiers.value; }
    void setAppModifiers(int modifiers) { change(m_appModifiers, modifiers); }
    bool clickToHide() const { return m_clickToHide.value; }
    void setClickToHide(bool on) { change(m_clickToHide, on); }
    bool tidyOnSwitch() const { return m_tidyOnSwitch.value; }
    void setTidyOnSwitch(bool on) { change(m_tidyOnSwitch, on); }
    bool claudePings() const { return m_claudePings.value; }
    void setClaudePings(bool on) { change(m_claudePings, on); }
    bool crashReports() const { return m_crashReports.value; }
    void setCrashReports(bool on) { change(m_crashReports, on); }
    const QString& breakThrough() const { return m_breakThrough.value; }
    void setBreakThrough(const QString& words) { change(m_breakThrough, words); }
    QStringList breakThroughWords() const; ///< without spaces around them; none of them empty
    Strictness strictness() const { return m_strictness.value; }
    void setStrictness(Strictness strictness) { change(m_strictness, strictness); }
    DockPosition dockPosition() const { return m_dockPosition.value; }
    void setDockPosition(DockPosition position) { change(m_dockPosition, position); }
    DockDisplay dockDisplay() const { return m_dockDisplay.value; }
    void setDockDisplay(DockDisplay display) { change(m_dockDisplay, display); }
    const DockAppearance& lightAppearance() const { return m_lightAppearance.value; }
    const DockAppearance& darkAppearance() const { return m_darkAppearance.value; }
    bool matchSystem() const { return m_matchSystem.value; }
    void setMatchSystem(bool on) { change(m_matchSystem, on); }

    /// Which model server on this machine to ask, and which of its models; empty: the first that is found.
    const QString& modelServer() const { return m_modelServer.value; }
    void setModelServer(const QString& address) { change(m_modelServer, address); }
    const QString& modelName() const { return m_modelName.value; }
    void setModelName(const QString& name) { change(m_modelName, name); }
    /// While messages are held, the desktop shows no banners.
    bool quietBanners() const { return m_quietBanners.value; }
    void setQuietBanners(bool on) { change(m_quietBanners, on); }
    /// What the system calls critical (battery, disk) is never held.
    bool passCritical() const { return m_passCritical.value; }
    void setPassCritical(bool on) { change(m_passCritical, on); }

    bool systemIsDark() const { return m_systemIsDark; }
    /// Which of the two looks is shown and edited while the user edits one; not stored.
    void setEditingDark(std::optional<bool> editing);
    std::optional<bool> editingDark() const { return m_editingDark; }

    bool showsDark() const;
    const DockAppearance& appearance() const { return showsDark() ? darkAppearance() : lightAppearance(); }
    /// `urgency`: a look that is being dragged about need not be on the disk at each step.
    void setAppearance(const DockAppearance& look, SettingsStore::Urgency urgency = SettingsStore::Urgency::atOnce);

    /// The defaults apply again to these settings: they are called by their properties' names; the looks are
    /// `lightAppearance` and `darkAppearance`. Unknown names are passed over.
    void reset(const QStringList& names);
    /// Every setting by its key, in the form that the store keeps, also where the default is in force.
    QHash<QString, StoredValue> values() const;
    /// Takes over what was changed in the store itself.
    void reload();

    /// The label of the hot key of the mode or of the dock's app at a position, which counts from 0; nothing when
    /// that position has no hot key.
    std::optional<QString> modeShortcut(int index) const;
    std::optional<QString> appShortcut(int index) const;

Q_SIGNALS:
    void changed();

private:
    /// What all settings have in common, whatever they hold.
    struct Entry {
        QString name;
        QString key;
        std::function<bool()> read; ///< takes over what the store has, or the default; whether that is new
        std::function<StoredValue()> value;
    };

    /// A setting enters itself among the others. Start and reset read it the same way.
    template<class Value>
    struct Setting {
        template<class Reader>
        Setting(Preferences& owner, const QString& name, const Reader& reader, const QString& storedAs = {})
            : key(storedAs.isEmpty() ? name : storedAs), value(reader(owner.m_store, key)) {
            owner.m_entries.append({name, key,
                                    [this, reader, &store = owner.m_store] {
                                        const Value before = std::exchange(value, Value(reader(store, key)));
                                        return !(before == value);
                                    },
                                    [this] { return stored(value); }});
        }
        Setting(const Setting&) = delete; // the entry points here
        Setting& operator=(const Setting&) = delete;
        Setting(Setting&&) = delete;
        Setting& operator=(Setting&&) = delete;
        ~Setting() = default;

        QString key;
        Value value;
    };

    static StoredValue stored(bool value) { return value; }
    static StoredValue stored(int value) { return qint64{value}; }
    static StoredValue stored(const QString& value) { return value; }
    static StoredValue stored(const std::optional<Shortcut>& value) { return toJson(value); }
    static StoredValue stored(const DockAppearance& value) { return toJson(value); }
    template<class Enumeration>
    requires std::is_enum_v<Enumeration>
    static StoredValue stored(Enumeration value) { return enumName(value); }

    template<class Value>
    void change(Setting<Value>& setting, const Value& value,
                SettingsStore::Urgency urgency = SettingsStore::Urgency::atOnce) {
        // Stored even when it equals the default in force: the user chose it, and defaults may change.
        m_store.set(setting.key, stored(value), urgency);
        if (setting.value == value)
            return;
        setting.value = value;
        Q_EMIT changed();
    }

    SettingsStore& m_store;
    SystemLook& m_look;
    QList<Entry> m_entries;
    Setting<DockSize> m_dockSize;
    Setting<bool> m_autoHide;
    Setting<bool> m_magnify;
    Setting<bool> m_focusGlow;
    Setting<bool> m_sounds;
    Setting<std::optional<Shortcut>> m_focusShortcut;
    Setting<std::optional<Shortcut>> m_dockShortcut;
    Setting<int> m_modeModifiers;
    Setting<int> m_appModifiers;
    Setting<bool> m_clickToHide;
    Setting<bool> m_tidyOnSwitch;
    Setting<bool> m_claudePings;
    Setting<bool> m_crashReports;
    Setting<QString> m_breakThrough;
    Setting<Strictness> m_strictness;
    Setting<DockPosition> m_dockPosition;
    Setting<DockDisplay> m_dockDisplay;
    Setting<DockAppearance> m_lightAppearance;
    Setting<DockAppearance> m_darkAppearance;
    Setting<bool> m_matchSystem;
    Setting<QString> m_modelServer;
    Setting<QString> m_modelName;
    Setting<bool> m_quietBanners;
    Setting<bool> m_passCritical;
    bool m_systemIsDark = false;
    std::optional<bool> m_editingDark;
};

} // namespace fendrel
