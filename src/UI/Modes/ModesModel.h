#pragma once

#include "UI/RowRoles.h"

#include <QAbstractListModel>
#include <QColor>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The modes as everything shows them, in the user's order.
class ModesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QVariantList entries READ entries NOTIFY entriesChanged) ///< the roles of each, for menus
public:
    explicit ModesModel(AppController& controller);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }
    QVariantList entries() const;
    Q_INVOKABLE int position(const QString& modeID) const; ///< -1: it is not in the list

Q_SIGNALS:
    void entriesChanged();

private:
    struct Row {
        QString id;
        QString name;
        QString symbol;
        QColor tint;
        QString hotKey; ///< label of the one that leads there; empty when none does
        bool isCurrent = false;
        bool isPending = false;
        int heldCount = 0;
        int appCount = 0;
        int siteCount = 0;
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    QString hotKey(int position) const;
    void refresh();

    AppController& m_controller;
    const RowRoles<Row> m_roles{{"modeID", &Row::id},           {"name", &Row::name},
                                {"symbol", &Row::symbol},       {"tint", &Row::tint},
                                {"hotKey", &Row::hotKey},       {"isCurrent", &Row::isCurrent},
                                {"isPending", &Row::isPending}, {"heldCount", &Row::heldCount},
                                {"appCount", &Row::appCount},   {"siteCount", &Row::siteCount}};
    QList<Row> m_rows;
};

} // namespace fendrel
