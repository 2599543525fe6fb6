#pragma once

#include "Platform/Linux/Desktop/BusCall.h"
#include "Platform/Linux/Docks/DockDriver.h"

#include <QFileSystemWatcher>

namespace fendrel {

/// Plasma's panels, which are asked and told by scripts that the shell runs. They know no delay, so an entry of our own
/// in their configuration tells that it was us who hid them; it stays there as an empty text. Only a running shell can
/// be asked, and it has what was written on the disk some seconds later.
class PlasmaDock final : public DockDriver {
public:
    PlasmaDock();

    QString dock() const override { return QStringLiteral("plasma"); }
    QString name() const override;
    QString service() const override { return QStringLiteral("org.kde.plasmashell"); }
    void setRunning(bool isRunning) override;
    Handle read(const QJsonObject& details, ReadDone done) override;
    Handle change(const DockChanges& changes, ChangeDone done) override;

private:
    void look();

    bool m_isRunning = false;
    QString m_file; ///< where the shell writes where its panels are; it tells of that in no other way
    QFileSystemWatcher m_files;
    Handle m_looking;
};

} // namespace fendrel
