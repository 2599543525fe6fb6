#pragma once

#include "Platform/Linux/X11/DesktopSettings.h"
#include "Ports/SystemLook.h"

#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>

#include <memory>

namespace fendrel {

/// What the desktop portal says of the look; empty where it says nothing.
struct PortalWishes {
    std::optional<uint> colorScheme{};   ///< 0 no preference, 1 dark, 2 light
    std::optional<uint> reducedMotion{}; ///< 1 reduced
    std::optional<bool> animates{};
    std::optional<uint> contrast{}; ///< 1 more
};

struct Look {
    bool isDark{};
    bool reducesMotion{};
    bool increasesContrast{};
    double textScale{1};
    bool operator==(const Look&) const = default;
};

/// The portal's word comes first. Where it has no preference, the name of the toolkit's theme tells.
Look lookFrom(const PortalWishes& portal, const QString& themeName, std::optional<bool> prefersDark,
              std::optional<bool> animates);

/// The look that the user chose in the desktop's settings. Main thread. Asks the portal without waiting for it and
/// without starting it; until it answers, the desktop's other settings count.
class PortalLook : public QObject, public SystemLook {
    Q_OBJECT
public:
    explicit PortalLook(std::shared_ptr<DesktopSettings> settings);

    bool isDark() const override { return m_look.isDark; }
    bool reducesMotion() const override { return m_look.reducesMotion; }
    bool increasesContrast() const override { return m_look.increasesContrast; }
    double textScale() const override { return m_look.textScale; }

private:
    void ask();
    void take(const QString& group, const QString& key, const QVariant& value);
    void refresh();
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

    std::shared_ptr<DesktopSettings> m_settings;
    QDBusServiceWatcher m_portal;
    PortalWishes m_wishes;
    Look m_look;
};

} // namespace fendrel
