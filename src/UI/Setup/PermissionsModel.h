#pragma once

#include "App/Capabilities.h"
#include "UI/RowRoles.h"

#include <QAbstractListModel>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

class AppIcons;

/// What of this system Fendrel makes use of, in words: how each stands, and what can be done about it.
class PermissionsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// One of its browsers is connected.
    Q_PROPERTY(bool hasConnection READ hasConnection NOTIFY countChanged)
public:
    enum class Shows {
        all,
        browsers,
        problems, ///< what is missing, browsers aside
    };

    PermissionsModel(AppController& controller, AppIcons& icons, Capabilities& capabilities, Shows shows);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }
    int count() const { return rowCount(); }
    bool hasConnection() const;

    /// Asks and looks again for what does not tell by itself.
    Q_INVOKABLE void refresh() { m_capabilities.refresh(); }
    /// Does one of a row's actions, which are listed with an id and a label.
    Q_INVOKABLE void act(const QString& row, const QString& action);

Q_SIGNALS:
    void countChanged();

private:
    struct Row {
        QString id{};
        QString title{};
        QString help{};
        QString state{}; ///< works, missing, locked, absent or unknown
        QString stateLabel{};
        QString reason{};
        QString remedy{};      ///< how to get it
        QString commandHelp{}; ///< what the command is for, and where it goes
        QString command{};     ///< empty: there is none
        QString icon{};
        QStringList actions{};
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    Row row(const Capability& capability);
    void describe(Row& row, const Capability& capability) const;
    static void offerCommand(Row& row, const Capability& capability, const QString& purpose);
    void describeBrowser(Row& row, const Capability& capability);
    void sync();
    QString installedBrowser() const; ///< one that Fendrel can talk to; empty: none
    static QVariantList labelled(const Row& row);

    AppController& m_controller;
    AppIcons& m_icons;
    Capabilities& m_capabilities;
    Shows m_shows;
    const RowRoles<Row> m_roles{{"rowID", &Row::id},
                                {"title", &Row::title},
                                {"help", &Row::help},
                                {"standing", &Row::state},
                                {"stateLabel", &Row::stateLabel},
                                {"reason", &Row::reason},
                                {"remedy", &Row::remedy},
                                {"commandHelp", &Row::commandHelp},
                                {"command", &Row::command},
                                {"icon", &Row::icon},
                                {"actions", labelled}};
    QList<Row> m_rows;
    Handle m_unlocking;
};

} // namespace fendrel
