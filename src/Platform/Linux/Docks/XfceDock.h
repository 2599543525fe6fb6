#pragma once

#include "Platform/Linux/Desktop/BusCall.h"
#include "Platform/Linux/Docks/DockDriver.h"
#include "Ports/Clock.h"

#include <QObject>
#include <QVariantMap>

#include <vector>

namespace fendrel {

/// Xfce's panels. They know no delay, and one that hides by itself comes for the last three pixels of the screen, so it
/// is also put on an output that does not exist, whose name tells that it was us. The service takes what is written at
/// once, and has it on the disk some seconds after the last change.
class XfceDock final : public QObject, public DockDriver {
    Q_OBJECT
public:
    explicit XfceDock(Clock& clock);

    QString dock() const override { return QStringLiteral("xfce4-panel"); }
    QString name() const override;
    QString service() const override { return QStringLiteral("org.xfce.Panel"); }
    void setRunning(bool isRunning) override;
    Handle read(const QJsonObject& details, ReadDone done) override;
    Handle change(const DockChanges& changes, ChangeDone done) override;
    Handle whenStored(const DockChanges& changes, std::function<void()> run) override;

private:
    Q_SLOT void onPropertyChanged(const QString& channel, const QString& property);
    void look();

    Clock& m_clock;
    bool m_isRunning = false;
    Handle m_looking;
};

} // namespace fendrel
