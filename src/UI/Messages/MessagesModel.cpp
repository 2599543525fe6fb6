#include "UI/Messages/MessagesModel.h"

#include "UI/SyncRows.h"

#include <QCoreApplication>
#include <QLocale>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

enum Role { iconRole = Qt::UserRole + 1, appNameRole, titleRole, bodyRole, timeRole, whyRole };

/// More is never seen, and laying out a whole novel takes time.
constexpr qsizetype longestText = 400;

QString oneLine(const QString& text) {
    return text.left(longestText).simplified();
}

QString timeText(WallTime date, WallTime now) {
    const QDateTime local = toDateTime(date).toLocalTime();
    const qint64 days = local.date().daysTo(toDateTime(now).toLocalTime().date());
    const QLocale locale;
    // Where no country is set, the short form has seconds.
    QString time = locale.toString(local.time(), locale.timeFormat(QLocale::ShortFormat).remove(u":ss"_s));
    if (days == 0)
        return time;
    if (days > 0 && days < 7)
        return locale.toString(local.date(), u"ddd "_s) + time;
    return locale.toString(local.date(), QLocale::ShortFormat);
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
            .time = timeText(message.date, now),
            .why = {}};
}

int MessagesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant MessagesModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case iconRole:
        return row.icon;
    case appNameRole:
        return row.appName;
    case Qt::DisplayRole:
    case titleRole:
        return row.title;
    case bodyRole:
        return row.text;
    case timeRole:
        return row.time;
    case whyRole:
        return row.why;
    default:
        return {};
    }
}

QHash<int, QByteArray> MessagesModel::roleNames() const {
    return {{iconRole, "icon"}, {appNameRole, "appName"}, {titleRole, "title"},
            {bodyRole, "body"}, {timeRole, "time"},       {whyRole, "why"}};
}

void MessagesModel::show(const QList<Row>& rows) {
    RowSync<MessagesModel, Row>::sync(*this, m_rows, rows);
}

} // namespace fendrel
