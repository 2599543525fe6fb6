#include "Platform/Linux/X11/DesktopSettings.h"

#include "Platform/Linux/Applications/KeyFile.h"

#include <QStandardPaths>

namespace fendrel {

using namespace Qt::StringLiterals;

DesktopSettings::DesktopSettings(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_daemon(m_connection, "_XSETTINGS_S" + QByteArray::number(m_connection->screenNumber())) {
    connect(m_connection.get(), &X11Connection::eventReceived, this, &DesktopSettings::handle);
    m_daemon.onChanged = [this] {
        read();
        Q_EMIT changed();
    };
    readFiles();
    read();
}

void DesktopSettings::handle(const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.window != m_daemon.window() || change.atom != m_connection->atoms().xsettingsSettings)
        return;
    read();
    Q_EMIT changed();
}

void DesktopSettings::read() {
    m_published.clear();
    if (m_daemon.window() == XCB_WINDOW_NONE)
        return;
    m_connection->select(m_daemon.window(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    m_published =
        parseXSettings(m_connection->property(m_daemon.window(), m_connection->atoms().xsettingsSettings).bytes());
}

void DesktopSettings::readFiles() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/';
    m_toolkitFile = readKeyFile(folder + u"gtk-3.0/settings.ini"_s).value(u"Settings"_s);
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    if (desktops.contains(u"KDE"_s))
        m_desktopIconTheme = readKeyFile(folder + u"kdeglobals"_s).value(u"Icons"_s).value(u"Theme"_s);
    else if (desktops.contains(u"LXQt"_s))
        m_desktopIconTheme = readKeyFile(folder + u"lxqt/lxqt.conf"_s).value(u"General"_s).value(u"icon_theme"_s);
}

QVariant DesktopSettings::value(const QString& name, const QString& fileKey) const {
    if (const auto published = m_published.constFind(name); published != m_published.constEnd())
        return *published;
    const auto kept = m_toolkitFile.constFind(fileKey);
    return kept == m_toolkitFile.constEnd() ? QVariant() : QVariant(*kept);
}

QString DesktopSettings::themeName() const {
    return value(u"Net/ThemeName"_s, u"gtk-theme-name"_s).toString();
}

QString DesktopSettings::iconThemeName() const {
    if (!m_desktopIconTheme.isEmpty())
        return m_desktopIconTheme;
    return value(u"Net/IconThemeName"_s, u"gtk-icon-theme-name"_s).toString();
}

std::optional<bool> DesktopSettings::prefersDark() const {
    const auto prefers = value(u"Gtk/ApplicationPreferDarkTheme"_s, u"gtk-application-prefer-dark-theme"_s);
    return prefers.isValid() ? std::optional(prefers.toBool()) : std::nullopt;
}

std::optional<bool> DesktopSettings::animates() const {
    const auto animates = value(u"Gtk/EnableAnimations"_s, u"gtk-enable-animations"_s);
    return animates.isValid() ? std::optional(animates.toBool()) : std::nullopt;
}

double DesktopSettings::drawnScale() const {
    constexpr double usual = 96.0 * 1024;
    // Where whole windows are drawn larger, too, the first leaves that out.
    const QVariant resolution = m_published.value(u"Gdk/UnscaledDPI"_s, m_published.value(u"Xft/DPI"_s));
    return resolution.toInt() > 0 ? resolution.toInt() / usual : 1;
}

} // namespace fendrel
