#pragma once

#include "Platform/Linux/Desktop/DesktopConfiguration.h"
#include "Platform/Linux/Docks/DockDriver.h"

#include <memory>
#include <vector>

namespace fendrel {

/// Cinnamon's panels, whose settings are the entries of lists: ['1:false', '2:true']. An entry that is missing from a
/// list that is set is an empty text.
class CinnamonDock final : public DockDriver {
public:
    explicit CinnamonDock(std::shared_ptr<DesktopConfiguration> configuration)
        : m_configuration(std::move(configuration)) {}

    QString dock() const override { return QStringLiteral("cinnamon"); }
    QString name() const override;
    QString service() const override { return QStringLiteral("org.Cinnamon"); }
    void setRunning(bool isRunning) override;
    Handle read(const QJsonObject& details, ReadDone done) override;
    Handle change(const DockChanges& changes, ChangeDone done) override;

private:
    QList<DockSetting> settings(const QJsonObject& details) const;
    void look();
    void change(const QString& list, const DockChanges& panels);

    std::shared_ptr<DesktopConfiguration> m_configuration;
    bool m_isRunning = false;
    Handle m_watch;
};

} // namespace fendrel
