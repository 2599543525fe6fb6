#pragma once

#include "Base/EnumNames.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QStringList>

#include <optional>

namespace fendrel::widget {
Q_NAMESPACE

/// Spelled as modes store them, in the order of the catalogue.
enum class DockWidget {
    timer,
    clock,
    calendar,
    nowPlaying,
    clipboard,
    note,
    github,
    wordCount,
    revenue,
    system,
    countdown,
    weather,
    toggles,
    shortcuts,
    reminders,
    batteries,
    shelf,
    onAir,
    today,
    intention,
    aiUsage,
    deploys,
    linear,
    sentry,
    garden,
    photo,
    sky,
    decide,
    daily,
    ticker
};
Q_ENUM_NS(DockWidget)

enum class WidgetSize { small, medium, large };
Q_ENUM_NS(WidgetSize)

enum class WidgetCategory { focus, timeAndCalendar, everyday, fun, media, building, business, system };
Q_ENUM_NS(WidgetCategory)

} // namespace fendrel::widget

namespace fendrel {

using widget::DockWidget;
using widget::WidgetCategory;
using widget::WidgetSize;

/// What the catalogue says of one kind of widget. Texts are in the user's language.
struct DockWidgetKind {
    DockWidget widget{};
    WidgetCategory category{};
    QList<WidgetSize> sizes{}; ///< that a card can have; it starts with the first
    QRgb accent{};
    QString symbol{};
    const char* sourceTitle{};
    const char* sourceShortTitle{}; ///< null: the title is short enough
    const char* sourceDetail{};

    QString id() const { return enumName(widget); }
    QString title() const;
    QString shortTitle() const; ///< for where space is tight
    QString detail() const;     ///< one line
};

/// A widget in its place. One kind is placed at most once in a list.
struct WidgetItem {
    DockWidget widget{};
    WidgetSize size{};
    bool operator==(const WidgetItem&) const = default;
};

/// All kinds, in the order of `DockWidget`.
const QList<DockWidgetKind>& dockWidgetKinds();
const DockWidgetKind& kind(DockWidget widget);
QString title(WidgetCategory category);

/// The stored widgets of a mode, each in the size that it starts with. What nobody knows is left out, and so is what is
/// named a second time.
QList<WidgetItem> widgetItems(const QStringList& ids);

} // namespace fendrel
