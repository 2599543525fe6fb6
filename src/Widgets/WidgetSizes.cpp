#include "Widgets/WidgetSizes.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace fendrel {

using namespace Qt::StringLiterals;

const QString WidgetSizes::settingKey = u"widgetSizes"_s;

WidgetSizes::WidgetSizes(SettingsStore& settings) : m_settings(settings), m_sizes(read(settings)) {}

/// An object of modes, each an object of its widgets. What nobody knows is left out.
WidgetSizes::Sizes WidgetSizes::read(const SettingsStore& settings) {
    Sizes sizes;
    const QJsonObject modes =
        QJsonDocument::fromJson(settings.read<QByteArray>(settingKey).value_or(QByteArray())).object();
    for (auto mode = modes.begin(); mode != modes.end(); ++mode) {
        const QJsonObject widgets = mode->toObject();
        for (auto entry = widgets.begin(); entry != widgets.end(); ++entry) {
            const auto widget = enumValue<DockWidget>(entry.key());
            const auto size = enumValue<WidgetSize>(entry->toString());
            if (widget && size && kind(*widget).sizes.contains(*size))
                sizes[{mode.key(), *widget}] = *size;
        }
    }
    return sizes;
}

QList<WidgetItem> WidgetSizes::items(const Mode& mode) const {
    QList<WidgetItem> items = widgetItems(mode.widgets);
    for (WidgetItem& item : items)
        if (const auto found = m_sizes.find({mode.id, item.widget}); found != m_sizes.end())
            item.size = found->second;
    return items;
}

void WidgetSizes::set(const QString& modeID, DockWidget widget, WidgetSize size) {
    if (!kind(widget).sizes.contains(size))
        return;
    m_sizes[{modeID, widget}] = size;
    QJsonObject modes;
    for (const auto& [place, each] : m_sizes) {
        QJsonObject widgets = modes[place.first].toObject();
        widgets.insert(enumName(place.second), enumName(each));
        modes.insert(place.first, widgets);
    }
    m_settings.set(settingKey, QJsonDocument(modes).toJson(QJsonDocument::Compact));
    Q_EMIT changed();
}

void WidgetSizes::reload() {
    m_sizes = read(m_settings);
    Q_EMIT changed();
}

} // namespace fendrel
