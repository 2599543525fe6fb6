#pragma once

#include "Messages/HeldMessage.h"
#include "UI/RowRoles.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace fendrel {

/// Messages as a card shows them: plain text that fits, whatever was in them.
class MessagesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    struct Row {
        QString id;
        QString icon;
        QString appName;
        QString title;
        QString text;
        QString time;
        QString why; ///< it is urgent; empty when it is not
        bool operator==(const Row&) const = default;
    };

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }

    void show(const QList<Row>& rows);

private:
    template<class, class>
    friend class RowSync;
    const RowRoles<Row> m_roles{{"icon", &Row::icon}, {"appName", &Row::appName}, {"title", &Row::title},
                                {"body", &Row::text}, {"time", &Row::time},       {"why", &Row::why}};
    QList<Row> m_rows;
};

/// What a message says by itself. The title is never empty: the first text that there is takes its place.
MessagesModel::Row messageRow(const HeldMessage& message, WallTime now);

} // namespace fendrel
