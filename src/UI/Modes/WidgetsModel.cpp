#include "UI/Modes/WidgetsModel.h"

#include "UI/SyncRows.h"
#include "UI/WordSearch.h"

#include <algorithm>

namespace fendrel {

/// What is to be known before it is chosen.
QString WidgetsModel::note(const Row& row) {
    return row.isDrawn ? QString() : tr("The dock can't show this one yet.");
}

void WidgetsModel::show(const QStringList& chosen, const QString& words, const std::function<void(Row&)>& complete) {
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    QList<DockWidgetKind> kinds = dockWidgetKinds();
    std::ranges::stable_sort(kinds, {}, &DockWidgetKind::category);
    QList<Row> rows;
    for (const DockWidgetKind& kind : kinds) {
        if (m_category && kind.category != *m_category)
            continue;
        Row row{.id = kind.id(),
                .title = kind.title(),
                .detail = kind.detail(),
                .symbol = kind.symbol,
                .accent = QColor::fromRgb(kind.accent),
                .category = fendrel::title(kind.category),
                .isChosen = chosen.contains(kind.id())};
        complete(row);
        if (eachIsIn(wanted, QStringList{row.title, row.detail, row.category, row.modeNames, row.account}.join(u'\n')))
            rows.append(row);
    }
    const int before = count();
    RowSync<WidgetsModel, Row>::sync(*this, m_rows, rows);
    if (count() != before)
        Q_EMIT countChanged();
}

} // namespace fendrel
