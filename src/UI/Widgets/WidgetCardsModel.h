#pragma once

#include "Ports/Clock.h"
#include "UI/RowRoles.h"
#include "UI/Widgets/CardContent.h"
#include "UI/Widgets/WidgetActions.h"
#include "Widgets/DockWidget.h"

#include <QAbstractListModel>
#include <QColor>
#include <QStringList>
#include <QVariantList>
#include <QtQmlIntegration>

#include <optional>

namespace fendrel {

class AppController;

/// The widgets of the current mode that have a card, in its order. While one is carried about, the rows are as they
/// would be if it were let go; nothing but this model knows of that.
class WidgetCardsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// Of each row the sizes that it can be drawn in, from its own downwards.
    Q_PROPERTY(QVariantList steps READ steps NOTIFY stepsChanged)

public:
    /// Where a carried card is, other than before another. QML knows enumerators by capitals only.
    enum Place { AtHome = -1, Nowhere = -2 };
    Q_ENUM(Place)

    explicit WidgetCardsModel(AppController& controller);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }

    QVariantList steps() const;
    /// What the card says now; nothing of a widget that has no row.
    const CardContent* content(const QString& widgetID) const;

    Q_INVOKABLE QStringList order() const; ///< the identifiers of the rows
    Q_INVOKABLE QString title(const QString& widgetID) const;
    /// What the mode has not yet, by category: { title, kinds }, each of them { widgetID, title, symbol, tint }.
    Q_INVOKABLE QVariantList offers() const;
    /// `place`: before which of the other rows.
    Q_INVOKABLE void carry(const QString& widgetID, int place);
    Q_INVOKABLE void letGo(); ///< the rows are again as the mode has them

Q_SIGNALS:
    void stepsChanged();

private:
    struct Row {
        QString id{};
        DockWidget widget{};
        QString title{};
        QString shortTitle{};
        QString symbol{};
        QColor accent{};
        QString size{};
        QStringList sizes{}; ///< from small to large
        CardContent content{};
        bool isCarried = false;
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    bool hasCard(DockWidget widget) const;
    QList<WidgetItem> shownItems() const;
    Row row(const WidgetItem& item) const;
    CardContent contentOf(DockWidget widget) const;
    void refresh();
    void update(DockWidget widget);
    void updateAll();
    void keepTime();

    AppController& m_controller;
    const RowRoles<Row> m_roles{{"widgetID", &Row::id},
                                {"title", &Row::title},
                                {"shortTitle", &Row::shortTitle},
                                {"symbol", &Row::symbol},
                                {"accent", &Row::accent},
                                {"size", &Row::size},
                                {"sizes", &Row::sizes},
                                {"content", [](const Row& row) { return QVariant::fromValue(row.content); }},
                                {"isCarried", &Row::isCarried},
                                {"pressText", [](const Row& row) { return WidgetActions::pressText(row.content); }}};
    QList<Row> m_rows;
    QString m_carried; ///< empty: nothing is
    int m_place = AtHome;
    std::optional<Handle> m_minutes; ///< while a card says something that time alone changes
};

} // namespace fendrel
