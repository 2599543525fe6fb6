#pragma once

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class AppIcons;
template<class Model, class Row>
class RowSync;

/// The applications in the dock: those of the current mode in its order, then the others that run.
class DockAppsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    DockAppsModel(AppController& controller, AppIcons& icons);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Row {
        QString id; ///< bundle identifier
        QString name;
        QString icon;
        bool isRunning = false;
        bool isFront = false;
        bool isInMode = false;
        bool startsOthers = false; ///< the first that does not belong to the mode, behind some that do
        bool operator==(const Row&) const = default;
    };
    friend class RowSync<DockAppsModel, Row>;
    void refresh();

    AppController& m_controller;
    AppIcons& m_icons;
    QList<Row> m_rows;
};

} // namespace fendrel
