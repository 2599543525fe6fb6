#include "UI/Messages/MessagesModel.h"

#include "UI/MomentText.h"
#include "UI/SyncRows.h"

#include <QCoreApplication>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// More is never seen, and laying out a whole novel takes time.
constexpr qsizetype longestText = 400;

QString oneLine(const QString& text) {
    return text.left(longestText).simplified();
}

} // namespace

MessagesModel::Row messageRow(const HeldMessage& message, WallTime now) {
    QStringList said{oneLine(message.title), oneLine(message.subtitle), oneLine(message.body)};
    said.removeAll(QString());
    if (said.isEmpty())
        said.append(QCoreApplication::translate("MessagesModel", "New message"));
    const QString title = said.takeFirst();
    return {.id = QString::number(message.id),
            .icon = {},
            .appName = {},
            .title = title,
            .text = said.join(u" · "_s),
            .time = momentText(message.date, now),
            .why = {}};
}

int MessagesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

void MessagesModel::show(const QList<Row>& rows) {
    RowSync<MessagesModel, Row>::sync(*this, m_rows, rows);
}

} // namespace fendrel
