#pragma once

#include "UI/RowRoles.h"
#include "Widgets/DockWidget.h"

#include <QAbstractListModel>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

/// Kinds of widgets, all or those of one category, and which of them a mode has.
class WidgetsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT) ///< its category's
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    struct Row {
        QString id{};
        QString title{};
        QString detail{};
        QString symbol{};
        QColor accent{};
        QString category{};   ///< its title
        bool isChosen{};      ///< the mode has it
        QVariantList modes{}; ///< those that have it: name and tint of each
        QString modeNames{};
        bool needsAccount{};
        bool isConnected{};
        QString account{};   ///< what is to be said about it
        bool isDrawn{true};  ///< there is a card for it
        QStringList sizes{}; ///< to choose from, the smallest first; empty: there is no choice
        int size{-1};        ///< the chosen one's place among them
        bool operator==(const Row&) const = default;
    };

    explicit WidgetsModel(std::optional<WidgetCategory> category = {}) : m_category(category) {}

    QString title() const { return m_category ? fendrel::title(*m_category) : QString(); }
    int count() const { return static_cast<int>(m_rows.size()); }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count(); }
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }

    /// Shows the kinds that the words find, by category. `complete` may add to a row what only its caller knows.
    void show(
        const QStringList& chosen, const QString& words, const std::function<void(Row&)>& complete = [](Row&) {});

Q_SIGNALS:
    void countChanged();

private:
    template<class, class>
    friend class RowSync;

    static QString note(const Row& row);

    std::optional<WidgetCategory> m_category;
    const RowRoles<Row> m_roles{{"widgetID", &Row::id},
                                {"title", &Row::title},
                                {"detail", &Row::detail},
                                {"symbol", &Row::symbol},
                                {"accent", &Row::accent},
                                {"category", &Row::category},
                                {"isChosen", &Row::isChosen},
                                {"modes", &Row::modes},
                                {"modeNames", &Row::modeNames},
                                {"needsAccount", &Row::needsAccount},
                                {"isConnected", &Row::isConnected},
                                {"account", &Row::account},
                                {"note", &WidgetsModel::note},
                                {"sizes", &Row::sizes},
                                {"size", &Row::size}};
    QList<Row> m_rows;
};

} // namespace fendrel
