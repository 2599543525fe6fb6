#pragma once

#include "UI/RowRoles.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The windows of one application, in the order in which they were opened. Without an application there are none.
class WindowsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString bundleID READ bundleID WRITE setBundleID NOTIFY bundleIDChanged)

public:
    explicit WindowsModel(AppController& controller);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override { return m_roles.value(m_rows, index, role); }
    QHash<int, QByteArray> roleNames() const override { return m_roles.names(); }

    const QString& bundleID() const { return m_bundleID; }
    void setBundleID(const QString& bundleID);

Q_SIGNALS:
    void bundleIDChanged();

private:
    struct Row {
        QString id;
        quint64 window = 0;
        QString title;
        bool isMinimized = false;
        bool isFront = false;
        bool operator==(const Row&) const = default;
    };
    template<class, class>
    friend class RowSync;
    void refresh();

    AppController& m_controller;
    QString m_bundleID;
    const RowRoles<Row> m_roles{{"windowID", &Row::window},
                                {"title", &Row::title},
                                {"isMinimized", &Row::isMinimized},
                                {"isFront", &Row::isFront}};
    QList<Row> m_rows;
};

} // namespace fendrel
