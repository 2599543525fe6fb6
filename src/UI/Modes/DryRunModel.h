#pragma once

#include "Base/WallTime.h"

#include <QAbstractListModel>
#include <QColor>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class AppIcons;
struct SeenApp;

/// The applications of the last day, and where each would go as the modes are now.
class DryRunModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    DryRunModel(AppController& controller, AppIcons& icons);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

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
    QString momentText(WallTime moment) const;

    AppController& m_controller;
    AppIcons& m_icons;
    QList<Row> m_rows;
};

} // namespace fendrel
