#pragma once

#include <QAbstractListModel>
#include <QColor>
#include <QStringList>
#include <QtQmlIntegration>

namespace fendrel {

/// The catalogue of widgets, by category, and which of them a mode has.
class WidgetsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// `chosen`: identifiers of those that the mode has.
    void show(const QStringList& chosen, const QString& words);

private:
    struct Row {
        QString id;
        QString title;
        QString detail;
        QString symbol;
        QColor accent;
        QString category; ///< its title
        bool isChosen = false;
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;

    QList<Row> m_rows;
};

} // namespace fendrel
