#pragma once

#include "Platform/Linux/Applications/IconTheme.h"
#include "Platform/Linux/X11/ApplicationGroups.h"
#include "Platform/Linux/X11/DesktopSettings.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace fendrel {

/// The applications' icons: of their desktop entries, else what a running one shows on its window. Main thread.
class ApplicationIcons : public QObject {
    Q_OBJECT
public:
    ApplicationIcons(std::shared_ptr<ApplicationGroups> groups, std::shared_ptr<DesktopSettings> settings);

    AppIcon icon(const QString& bundleID);
    void forget(); ///< applications came or went

    std::function<void()> onThemeChanged = [] {};

private:
    QString fileOf(const QString& bundleID);
    QImage imageOf(const QString& bundleID);

    std::shared_ptr<ApplicationGroups> m_groups;
    std::shared_ptr<DesktopSettings> m_settings;
    QString m_themeName;
    std::optional<IconTheme> m_theme; ///< read when the first icon is asked for
    QHash<QString, QString> m_files;  ///< identifier -> file
    QHash<QString, QImage> m_images;  ///< identifier -> a window's icon
};

} // namespace fendrel
