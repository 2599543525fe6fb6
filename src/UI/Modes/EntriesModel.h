#pragma once

#include "UI/RowRoles.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <functional>

namespace fendrel {

/// A list of things that have a name and perhaps a picture.
class EntriesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    struct Row {
        QString id;
        QString name;
        QString note{}; ///< a remark about it; mostly empty
        bool operator==(const Row&) const = default;
    };

    /// `icon` gives the address of a row's picture, and is asked only for rows that are looked at.
    explicit EntriesModel(std::function<QString(const QString& id)> icon = [](const QString&) { return QString(); });

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }

    void show(const QList<Row>& rows);
    void refreshIcons();

private:
    template<class, class>
    friend class RowSync;

    std::function<QString(const QString& id)> m_icon;
    const RowRoles<Row> m_roles{{"entryID", &Row::id},
                                {"name", &Row::name},
                                {"note", &Row::note},
                                {"icon", [this](const Row& row) { return m_icon(row.id); }}};
    QList<Row> m_rows;
};

} // namespace fendrel
