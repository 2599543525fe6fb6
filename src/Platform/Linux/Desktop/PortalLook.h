#pragma once

#include "Platform/Linux/Desktop/DesktopConfiguration.h"
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
    std::optional<double> textScale{};
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

/// The factor on text that is left to us. A settings daemon may pass the user's factor on as a resolution, and by that
/// the toolkit scales all that it draws: `drawnScale` is what it was told so, 1 for nothing.
double textScaleFrom(std::optional<double> wanted, double drawnScale);

/// The look that the user chose in the desktop's settings. Main thread. Asks the portal without waiting for it and
/// without starting it; until it answers, the desktop's other settings count.
class PortalLook : public QObject, public SystemLook {
    Q_OBJECT
public:
    PortalLook(std::shared_ptr<DesktopSettings> settings, std::shared_ptr<DesktopConfiguration> configuration);

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
    std::shared_ptr<DesktopConfiguration> m_configuration;
    Handle m_configurationWatch;
    QDBusServiceWatcher m_portal;
    PortalWishes m_wishes;
    Look m_look;
};

} // namespace fendrel
