#pragma once

#include "Widgets/DockWidget.h"

#include <QAbstractListModel>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

/// One category of the catalogue of widgets.
class WidgetGroup : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    struct Row {
        QString id{};
        QString title{};
        QString detail{};
        QString symbol{};
        QColor accent{};
        QVariantList modes{}; ///< those that have it: name and tint of each
        QString modeNames{};
        bool isChosen = false; ///< the current mode has it
        bool needsAccount = false;
        bool isConnected = false;
        QString account{}; ///< what is to be said about it
        bool operator==(const Row&) const = default;
    };

    explicit WidgetGroup(WidgetCategory category) : m_category(category) {}

    WidgetCategory category() const { return m_category; }
    QString title() const { return fendrel::title(m_category); }
    int count() const { return static_cast<int>(m_rows.size()); }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void show(const QList<Row>& rows);

Q_SIGNALS:
    void countChanged();

private:
    template<class, class>
    friend class RowSync;

    WidgetCategory m_category;
    QList<Row> m_rows;
};

} // namespace fendrel
