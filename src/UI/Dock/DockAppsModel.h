#pragma once

#include "UI/RowRoles.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class AppIcons;

/// The applications in the dock: those of the current mode in its order, then the others that run. While one is carried
/// about, the rows are as they would be if it were let go; nothing but this model knows of that.
class DockAppsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(int modeCount READ modeCount NOTIFY modeCountChanged)

public:
    /// Where a carried application is, other than between those of the mode. QML knows enumerators by capitals only.
    enum Place { AtHome = -1, Nowhere = -2 };
    Q_ENUM(Place)

    DockAppsModel(AppController& controller, AppIcons& icons);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }

    int modeCount() const { return m_modeCount; } ///< how many of the rows are the mode's

    /// Any application can be carried, also one that has no row. `place`: before which of the mode's other rows.
    Q_INVOKABLE void carry(const QString& bundleID, int place);
    Q_INVOKABLE void letGo(); ///< the rows are again as the mode has them
    /// Its neighbour among the mode's rows; empty at either end.
    Q_INVOKABLE QString previous(const QString& bundleID) const { return neighbour(bundleID, -1); }
    Q_INVOKABLE QString next(const QString& bundleID) const { return neighbour(bundleID, 1); }
    Q_INVOKABLE bool isInMode(const QString& bundleID) const; ///< as the mode has it
    QString bundleID(int row) const;                          ///< empty where there is none
    Q_INVOKABLE QString icon(const QString& bundleID) const;  ///< its address
    Q_INVOKABLE QString name(const QString& bundleID) const;
    /// The next row after `from` whose name begins with these letters, going round; -1: none.
    Q_INVOKABLE int find(const QString& letters, int from) const;

Q_SIGNALS:
    void modeCountChanged();

private:
    struct Row {
        QString id; ///< bundle identifier
        QString name;
        QString icon;
        bool isRunning = false;
        bool isFront = false;
        bool isInMode = false;
        bool startsOthers = false; ///< the first that does not belong to the mode, behind some that do
        bool isCarried = false;
        bool isUrgent = false;
        bool isHidden = false; ///< it has windows, and hides all of them
        int windowCount = 0;
        qint64 badgeCount = 0; ///< 0: no badge
        double progress = -1;  ///< 0 to 1; negative: none
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    void refresh();
    QStringList shownApps() const;
    Row row(const QString& bundleID) const;
    QString neighbour(const QString& bundleID, int step) const;
    static QString badgeText(qint64 count);

    AppController& m_controller;
    AppIcons& m_icons;
    const RowRoles<Row> m_roles{{"bundleID", &Row::id},
                                {"name", &Row::name},
                                {"icon", &Row::icon},
                                {"isRunning", &Row::isRunning},
                                {"isFront", &Row::isFront},
                                {"isInMode", &Row::isInMode},
                                {"startsOthers", &Row::startsOthers},
                                {"isCarried", &Row::isCarried},
                                {"isUrgent", &Row::isUrgent},
                                {"isHidden", &Row::isHidden},
                                {"windowCount", &Row::windowCount},
                                {"badgeCount", &Row::badgeCount},
                                {"badgeText", [](const Row& row) { return badgeText(row.badgeCount); }},
                                {"progress", &Row::progress}};
    QList<Row> m_rows;
    int m_modeCount = 0;
    QString m_carried; ///< empty: nothing is
    int m_place = AtHome;
};

} // namespace fendrel
