#pragma once

#include "UI/Images/AppIcons.h"
#include "UI/RowRoles.h"

#include <QAbstractListModel>
#include <QColor>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
struct SeenApp;

/// The applications of the last day, and where each would go as the modes are now.
class DryRunModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    DryRunModel(AppController& controller, AppIcons& icons);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }

    void refresh();

private:
    struct Row {
        QString id; ///< bundle identifier
        QString name;
        QString seen{};  ///< when, as text
        QString place{}; ///< the mode's name, or what stands for none
        QString reason{};
        QString symbol{}; ///< of the mode; empty when it goes to none
        QColor tint{};
        bool isUndecided = false;
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    Row row(const SeenApp& app) const;

    AppController& m_controller;
    AppIcons& m_icons;
    const RowRoles<Row> m_roles{{"bundleID", &Row::id},
                                {"name", &Row::name},
                                {"icon", [this](const Row& row) { return m_icons.source(row.id); }},
                                {"seen", &Row::seen},
                                {"place", &Row::place},
                                {"reason", &Row::reason},
                                {"symbol", &Row::symbol},
                                {"tint", &Row::tint},
                                {"isUndecided", &Row::isUndecided}};
    QList<Row> m_rows;
};

} // namespace fendrel
