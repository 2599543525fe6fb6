#include "UI/Settings/WidgetsController.h"

#include "App/AppController.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

WidgetsController::WidgetsController(AppController& controller, FileAsking& files)
    : m_controller(controller),
      m_subjects(controller.widgets(), *controller.platform().shell),
      m_calendar(controller, files) {
    const QMetaEnum categories = QMetaEnum::fromType<WidgetCategory>();
    for (int index = 0; index < categories.keyCount(); ++index)
        m_groups.push_back(std::make_unique<WidgetsModel>(static_cast<WidgetCategory>(categories.value(index))));
    for (const auto& group : m_groups)
        group->setParent(this); // else views would think that they own it
    connect(&controller.engine(), &ModeEngine::changed, this, &WidgetsController::refresh);
    connect(&controller.accounts(), &WidgetAccounts::changed, this, &WidgetsController::refresh);
    connect(&controller.widgetSizes(), &WidgetSizes::changed, this, &WidgetsController::refresh);
    controller.accounts().read();
    refresh();
}

QVariantList WidgetsController::groups() const {
    QVariantList list;
    for (const auto& group : m_groups)
        list.append(QVariant::fromValue(group.get()));
    return list;
}

int WidgetsController::found() const {
    int sum = 0;
    for (const auto& group : m_groups)
        sum += group->count();
    return sum;
}

QString WidgetsController::modeName() const {
    return m_controller.engine().current().name;
}

QColor WidgetsController::modeTint() const {
    return color(m_controller.engine().current().tint);
}

void WidgetsController::search(const QString& words) {
    m_words = words;
    refresh();
}

void WidgetsController::choose(const QString& widgetID, bool on) {
    Mode mode = m_controller.engine().current();
    mode.widgets.removeAll(widgetID);
    if (on)
        mode.widgets.append(widgetID);
    m_controller.engine().update(mode);
}

void WidgetsController::setSize(const QString& widgetID, const QString& size) {
    const auto widget = enumValue<DockWidget>(widgetID);
    const auto wanted = enumValue<WidgetSize>(size);
    if (widget && wanted)
        m_controller.widgetSizes().set(m_controller.engine().current().id, *widget, *wanted);
}

void WidgetsController::refresh() {
    for (const auto& group : m_groups)
        group->show(m_controller.engine().current().widgets, m_words, [this](auto& row) { complete(row); });
    Q_EMIT changed();
}

void WidgetsController::complete(WidgetsModel::Row& row) const {
    const auto widget = *enumValue<DockWidget>(row.id);
    row.isDrawn = m_controller.widgets().feed(widget) != nullptr;
    QList<WidgetSize> sizes = kind(widget).sizes;
    std::ranges::sort(sizes);
    const auto items = m_controller.widgetSizes().items(m_controller.engine().current());
    const auto item = std::ranges::find(items, widget, &WidgetItem::widget);
    if (row.isDrawn && item != items.end() && sizes.size() > 1) {
        for (const WidgetSize size : sizes)
            row.sizes.append(enumName(size));
        row.size = static_cast<int>(sizes.indexOf(item->size));
    }

    QStringList names;
    for (const Mode& mode : m_controller.engine().modes()) {
        if (!mode.widgets.contains(row.id))
            continue;
        names.append(mode.name);
        row.modes.append(QVariantMap{{u"name"_s, mode.name}, {u"tint"_s, color(mode.tint)}});
    }
    row.modeNames = names.join(QStringLiteral(", "));

    QStringList connected;
    QStringList possible;
    for (const auto service : WidgetAccounts::usedBy(widget)) {
        const QString& name = WidgetAccounts::description(service).name;
        possible.append(name);
        if (m_controller.accounts().connected().contains(service))
            connected.append(name);
    }
    row.needsAccount = !possible.isEmpty();
    row.isConnected = !connected.isEmpty();
    if (row.isConnected)
        row.account = tr("Connected to %1").arg(connected.join(QStringLiteral(", ")));
    else if (row.needsAccount)
        row.account = possible.size() > 1
                          ? tr("Needs an account of one of these: %1").arg(possible.join(QStringLiteral(", ")))
                          : tr("Needs an account of %1").arg(possible.first());
}

} // namespace fendrel
