#pragma once

#include "Platform/Linux/Desktop/DesktopConfiguration.h"
#include "Platform/Linux/Docks/DockDriver.h"

#include <memory>
#include <vector>

namespace fendrel {

/// What there is to know of a dock that keeps its settings in the desktop's configuration, each panel's on its own.
struct ConfigurationDockKind {
    struct Hiding {
        QString key{};
        QString value{}; ///< that keeps the panel away
    };
    QString dock{};
    const char* name{}; ///< a text of the context "Docks"
    QString service{};
    ConfigurationKey list{}; ///< of the panels' names
    QStringList panels{};    ///< the names that are this dock's; empty: all
    QStringList unlisted{};  ///< panels that are there though the list does not name them
    QString schema{};        ///< of a panel's settings
    QString path{};          ///< of a panel's settings, with %1 for its name; empty: they are all one
    QString edgeKey{};       ///< where a panel is: 'bottom'
    QList<Hiding> hiding{};
};

class ConfigurationDock final : public DockDriver {
public:
    ConfigurationDock(ConfigurationDockKind kind, std::shared_ptr<DesktopConfiguration> configuration)
        : m_kind(std::move(kind)), m_configuration(std::move(configuration)) {}

    QString dock() const override { return m_kind.dock; }
    QString name() const override;
    QString service() const override { return m_kind.service; }
    void setRunning(bool isRunning) override;
    Handle read(const QJsonObject& details, ReadDone done) override;
    Handle change(const DockChanges& changes, ChangeDone done) override;

private:
    QList<DockSetting> settings(const QJsonObject& details) const;
    QStringList paths() const;
    std::optional<Qt::Edge> edge(const QString& path) const;
    ConfigurationKey key(const QString& name) const;
    void look();
    bool isAs(const DockChanges& changes) const;

    ConfigurationDockKind m_kind;
    std::shared_ptr<DesktopConfiguration> m_configuration;
    bool m_isRunning = false;
    std::vector<Handle> m_watches;
};

/// The texts of a list like ['a', 'b'].
QStringList textsOf(const std::optional<QString>& list);

} // namespace fendrel
