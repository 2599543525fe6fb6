#pragma once

#include <QAbstractListModel>
#include <QColor>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The modes as the dock and the menus show them, in the user's order.
class ModesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    explicit ModesModel(AppController& controller);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    /// The modes as entries of a menu: text, value, symbol, tint and isChecked.
    Q_INVOKABLE QVariantList menuEntries(const QString& checkedID) const;

private:
    struct Row {
        QString id;
        QString name;
        QString symbol;
        QColor tint;
        bool isCurrent = false;
        bool isPending = false;
        int heldCount = 0;
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    void refresh();

    AppController& m_controller;
    QList<Row> m_rows;
};

} // namespace fendrel
