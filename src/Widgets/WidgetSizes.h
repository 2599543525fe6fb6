#pragma once

#include "Modes/Mode.h"
#include "Ports/SettingsStore.h"
#include "Widgets/DockWidget.h"

#include <QObject>

#include <map>

namespace fendrel {

/// In which size each mode shows its widgets: those that the user changed, by mode. Main thread.
class WidgetSizes : public QObject {
    Q_OBJECT
public:
    static const QString settingKey;

    explicit WidgetSizes(SettingsStore& settings);

    /// The widgets of a mode in their order, each in its size there.
    QList<WidgetItem> items(const Mode& mode) const;
    /// A size that the kind doesn't have changes nothing.
    void set(const QString& modeID, DockWidget widget, WidgetSize size);
    /// Takes over what was changed in the settings themselves.
    void reload();

Q_SIGNALS:
    void changed();

private:
    using Sizes = std::map<std::pair<QString, DockWidget>, WidgetSize>; ///< by mode and widget

    static Sizes read(const SettingsStore& settings);

    SettingsStore& m_settings;
    Sizes m_sizes;
};

} // namespace fendrel
