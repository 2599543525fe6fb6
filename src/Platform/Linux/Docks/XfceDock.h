#pragma once

#include "Platform/Linux/Desktop/BusCall.h"
#include "Platform/Linux/Docks/DockDriver.h"

#include <QObject>
#include <QVariantMap>

#include <vector>

namespace fendrel {

/// Xfce's panels. They know no delay, and one that hides by itself comes for the last three pixels of the screen, so it
/// is also put on an output that does not exist, whose name tells that it was us. What was written is safe from our end
/// at once; the service has it on the disk some seconds later.
class XfceDock final : public QObject, public DockDriver {
    Q_OBJECT
public:
    XfceDock();

    QString dock() const override { return QStringLiteral("xfce4-panel"); }
    QString name() const override { return QStringLiteral("the Xfce panel"); }
    QString service() const override { return QStringLiteral("org.xfce.Panel"); }
    void setRunning(bool isRunning) override;
    QList<Qt::Edge> edges() const override { return m_edges; }
    Handle read(const QJsonObject& details, ReadDone done) override;
    Handle change(const DockChanges& changes, ChangeDone done) override;

private:
    Q_SLOT void onPropertyChanged(const QString& channel, const QString& property);
    void look();
    void take(const QList<Qt::Edge>& edges);

    bool m_isRunning = false;
    QList<Qt::Edge> m_edges;
    Handle m_looking;
};

} // namespace fendrel
