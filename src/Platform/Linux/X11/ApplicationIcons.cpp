#include "Platform/Linux/X11/ApplicationIcons.h"

#include "Platform/Linux/X11/WindowIcon.h"

namespace fendrel {

ApplicationIcons::ApplicationIcons(std::shared_ptr<ApplicationGroups> groups, std::shared_ptr<DesktopSettings> settings)
    : m_groups(std::move(groups)), m_settings(std::move(settings)), m_themeName(m_settings->iconThemeName()) {
    connect(m_settings.get(), &DesktopSettings::changed, this, [this] {
        const QString name = m_settings->iconThemeName();
        if (std::exchange(m_themeName, name) == name)
            return;
        m_theme.reset();
        forget();
        onThemeChanged();
    });
    // Some applications show their state in their icon.
    connect(&m_groups->windows(), &X11Windows::iconChanged, this, [this] { m_images.clear(); });
}

void ApplicationIcons::forget() {
    m_files.clear();
    m_images.clear();
}

AppIcon ApplicationIcons::icon(const QString& bundleID) {
    if (const QString file = fileOf(bundleID); !file.isEmpty())
        return {.file = file, .image = {}};
    return {.file = {}, .image = imageOf(bundleID)};
}

QString ApplicationIcons::fileOf(const QString& bundleID) {
    if (const auto known = m_files.constFind(bundleID); known != m_files.constEnd())
        return *known;
    const auto* entry = m_groups->catalog().entry(bundleID);
    if (entry == nullptr)
        return {};
    if (!m_theme)
        m_theme.emplace(m_themeName, IconTheme::standardFolders(), IconTheme::standardLooseFolders());
    return *m_files.insert(bundleID, m_theme->find(entry->icon));
}

QImage ApplicationIcons::imageOf(const QString& bundleID) {
    if (const auto known = m_images.constFind(bundleID); known != m_images.constEnd())
        return *known;
    auto& connection = m_groups->windows().connection();
    for (const RunningApp& app : m_groups->running()) {
        const auto group = app.bundleID == bundleID ? m_groups->find(app.pid) : std::nullopt;
        for (const xcb_window_t window : group ? group->windows : QList<xcb_window_t>()) {
            const auto image = windowIcon(connection.property(window, connection.atoms().netWmIcon).numbers());
            if (!image.isNull())
                return *m_images.insert(bundleID, image);
        }
    }
    return {};
}

} // namespace fendrel
