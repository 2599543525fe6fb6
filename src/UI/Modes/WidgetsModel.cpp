#include "UI/Modes/WidgetsModel.h"

#include "UI/SyncRows.h"
#include "Widgets/DockWidget.h"

#include <algorithm>

namespace fendrel {

namespace {
enum Role {
    widgetIDRole = Qt::UserRole + 1,
    titleRole,
    detailRole,
    symbolRole,
    accentRole,
    categoryRole,
    isChosenRole
};
}

int WidgetsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant WidgetsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case widgetIDRole:
        return row.id;
    case Qt::DisplayRole:
    case titleRole:
        return row.title;
    case detailRole:
        return row.detail;
    case symbolRole:
        return row.symbol;
    case accentRole:
        return row.accent;
    case categoryRole:
        return row.category;
    case isChosenRole:
        return row.isChosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> WidgetsModel::roleNames() const {
    return {{widgetIDRole, "widgetID"}, {titleRole, "title"},       {detailRole, "detail"},    {symbolRole, "symbol"},
            {accentRole, "accent"},     {categoryRole, "category"}, {isChosenRole, "isChosen"}};
}

void WidgetsModel::show(const QStringList& chosen, const QString& words) {
    QList<DockWidgetKind> kinds = dockWidgetKinds();
    std::ranges::stable_sort(kinds, {}, &DockWidgetKind::category);
    QList<Row> wanted;
    for (const DockWidgetKind& kind : kinds) {
        const Row row{.id = kind.id(),
                      .title = kind.title(),
                      .detail = kind.detail(),
                      .symbol = kind.symbol,
                      .accent = QColor::fromRgb(kind.accent),
                      .category = title(kind.category),
                      .isChosen = chosen.contains(kind.id())};
        const bool isFound =
            std::ranges::any_of(QStringList{row.title, row.detail, row.category}, [&](const QString& text) {
                return text.contains(words.trimmed(), Qt::CaseInsensitive);
            });
        if (isFound)
            wanted.append(row);
    }
    RowSync<WidgetsModel, Row>::sync(*this, m_rows, wanted);
}

} // namespace fendrel
