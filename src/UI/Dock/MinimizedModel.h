#pragma once

#include "UI/RowRoles.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class AppIcons;

/// The minimised windows as the dock shows them.
class MinimizedModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    MinimizedModel(AppController& controller, AppIcons& icons);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }

private:
    struct Row {
        QString id;
        quint64 window = 0;
        QString title;
        QString app; ///< its name
        QString icon;
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    void refresh();

    AppController& m_controller;
    AppIcons& m_icons;
    const RowRoles<Row> m_roles{
        {"windowID", &Row::window}, {"title", &Row::title}, {"app", &Row::app}, {"icon", &Row::icon}};
    QList<Row> m_rows;
};

} // namespace fendrel
