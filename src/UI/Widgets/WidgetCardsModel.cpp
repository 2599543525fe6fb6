#include "UI/Widgets/WidgetCardsModel.h"

#include "App/AppController.h"
#include "UI/SyncRows.h"
#include "UI/Widgets/Cards.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

WidgetCardsModel::WidgetCardsModel(AppController& controller) : m_controller(controller) {
    connect(&controller.engine(), &ModeEngine::changed, this, &WidgetCardsModel::refresh);
    connect(&controller.widgetSizes(), &WidgetSizes::changed, this, &WidgetCardsModel::refresh);
    connect(&controller.accounts(), &WidgetAccounts::changed, this, &WidgetCardsModel::updateAll);
    for (const DockWidgetKind& kind : dockWidgetKinds())
        if (const WidgetFeed* feed = controller.widgets().feed(kind.widget))
            connect(feed, &WidgetFeed::changed, this, [this, widget = kind.widget] {
                update(widget);
                keepTime();
            });
    refresh();
}

int WidgetCardsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariantList WidgetCardsModel::steps() const {
    QVariantList steps;
    for (const Row& row : m_rows) {
        QStringList sizes = row.sizes.mid(0, row.sizes.indexOf(row.size) + 1);
        std::ranges::reverse(sizes);
        steps.append(QVariant(sizes));
    }
    return steps;
}

const CardContent* WidgetCardsModel::content(const QString& widgetID) const {
    const auto found = std::ranges::find(m_rows, widgetID, &Row::id);
    return found == m_rows.end() ? nullptr : &found->content;
}

QStringList WidgetCardsModel::order() const {
    QStringList ids;
    for (const Row& row : m_rows)
        ids.append(row.id);
    return ids;
}

QString WidgetCardsModel::title(const QString& widgetID) const {
    const auto widget = enumValue<DockWidget>(widgetID);
    return widget ? kind(*widget).title() : QString();
}

QVariantList WidgetCardsModel::offers() const {
    QVariantList categories;
    const QMetaEnum all = QMetaEnum::fromType<WidgetCategory>();
    for (int index = 0; index < all.keyCount(); ++index) {
        const auto category = static_cast<WidgetCategory>(all.value(index));
        QVariantList kinds;
        for (const DockWidgetKind& kind : dockWidgetKinds())
            if (kind.category == category && hasCard(kind.widget) &&
                !m_controller.engine().current().widgets.contains(kind.id()))
                kinds.append(QVariantMap{{u"widgetID"_s, kind.id()},
                                         {u"title"_s, kind.title()},
                                         {u"symbol"_s, kind.symbol},
                                         {u"tint"_s, QColor::fromRgb(kind.accent)}});
        if (!kinds.isEmpty())
            categories.append(QVariantMap{{u"title"_s, fendrel::title(category)}, {u"kinds"_s, kinds}});
    }
    return categories;
}

void WidgetCardsModel::carry(const QString& widgetID, int place) {
    if (m_carried == widgetID && m_place == place)
        return;
    m_carried = widgetID;
    m_place = place;
    refresh();
}

void WidgetCardsModel::letGo() {
    carry({}, AtHome);
}

bool WidgetCardsModel::hasCard(DockWidget widget) const {
    return m_controller.widgets().feed(widget) != nullptr;
}

QList<WidgetItem> WidgetCardsModel::shownItems() const {
    QList<WidgetItem> items = m_controller.widgetSizes().items(m_controller.engine().current());
    items.removeIf([this](const WidgetItem& item) { return !hasCard(item.widget); });
    const auto carried = std::ranges::find(items, m_carried, [](const auto& item) { return enumName(item.widget); });
    if (carried == items.end() || m_place == AtHome)
        return items;
    const WidgetItem item = *carried;
    items.erase(carried);
    if (m_place != Nowhere)
        items.insert(std::clamp<qsizetype>(m_place, 0, items.size()), item);
    return items;
}

WidgetCardsModel::Row WidgetCardsModel::row(const WidgetItem& item) const {
    const DockWidgetKind& kind = fendrel::kind(item.widget);
    QList<WidgetSize> sizes = kind.sizes;
    std::ranges::sort(sizes);
    Row row{.id = kind.id(),
            .widget = item.widget,
            .title = kind.title(),
            .shortTitle = kind.shortTitle(),
            .symbol = kind.symbol,
            .accent = QColor::fromRgb(kind.accent),
            .size = enumName(item.size),
            .isCarried = kind.id() == m_carried};
    for (const WidgetSize size : sizes)
        row.sizes.append(enumName(size));
    const CardContent* known = content(row.id);
    row.content = known ? *known : contentOf(item.widget);
    return row;
}

CardContent WidgetCardsModel::contentOf(DockWidget widget) const {
    return cardContent(m_controller.widgets(), m_controller.accounts(), widget, m_controller.platform().clock->now());
}

void WidgetCardsModel::refresh() {
    const QVariantList before = steps();
    QList<Row> wanted;
    for (const WidgetItem& item : shownItems())
        wanted.append(row(item));
    RowSync<WidgetCardsModel, Row>::sync(*this, m_rows, wanted);
    keepTime();
    if (steps() != before)
        Q_EMIT stepsChanged();
}

void WidgetCardsModel::update(DockWidget widget) {
    const auto found = std::ranges::find(m_rows, widget, &Row::widget);
    if (found == m_rows.end())
        return;
    CardContent now = contentOf(widget);
    if (now == found->content)
        return;
    found->content = std::move(now);
    const QModelIndex changed = index(static_cast<int>(found - m_rows.begin()));
    Q_EMIT dataChanged(changed, changed);
}

void WidgetCardsModel::updateAll() {
    for (const Row& row : m_rows)
        update(row.widget);
}

/// Only what has come grows old, or comes closer. Looked at on the full minute, where events begin.
void WidgetCardsModel::keepTime() {
    const bool isNeeded = std::ranges::any_of(
        m_rows, [this](const Row& row) { return m_controller.widgets().feed(row.widget)->updatedAt().has_value(); });
    if (!isNeeded) {
        m_minutes.reset();
    } else if (!m_minutes) {
        Clock& clock = *m_controller.platform().clock;
        const WallTime now = clock.now();
        m_minutes = clock.after(std::chrono::floor<std::chrono::minutes>(now) + 1min - now, [this] {
            m_minutes.reset();
            updateAll();
            keepTime();
        });
    }
}

} // namespace fendrel
