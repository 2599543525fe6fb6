#pragma once

#include <QAbstractListModel>
#include <QColor>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The modes as their editor lists them, in the user's order.
class ModeListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    explicit ModeListModel(AppController& controller);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    Q_INVOKABLE int position(const QString& modeID) const; ///< -1: it is not in the list

private:
    struct Row {
        QString id;
        QString name;
        QString symbol;
        QColor tint;
        QString shortcut; ///< label of its hot key; empty when it has none
        bool isCurrent = false;
        int appCount = 0;
        int siteCount = 0;
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    void refresh();

    AppController& m_controller;
    QList<Row> m_rows;
};

} // namespace fendrel
