#pragma once

#include "Platform/Linux/Applications/ApplicationCatalog.h"
#include "Ports/Badges.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace fendrel {

/// What an application said of its button so far. It tells only what changed, and hides what it said without taking it
/// back.
struct LauncherProperties {
    std::optional<qint64> count{};
    std::optional<double> progress{};
    bool showsCount{};
    bool showsProgress{};
    bool isUrgent{};

    void take(const QVariantMap& changes); ///< what is of a wrong type, or no number, is left out
    AppBadge badge() const;
};

/// Badges as applications announce them on the session bus by "com.canonical.Unity.LauncherEntry". Main thread. Those
/// of applications that the catalogue does not know are left out, and those of one that left the bus are gone.
class LauncherEntries : public QObject, public Badges {
    Q_OBJECT
public:
    explicit LauncherEntries(std::shared_ptr<ApplicationCatalog> catalog);

    AppBadge badge(const QString& bundleID) const override { return m_badges.value(bundleID).said.badge(); }

private:
    struct Announced {
        QString sender{};
        LauncherProperties said{};
    };

    Q_SLOT void update(const QString& application, const QVariantMap& properties, const QDBusMessage& message);
    void watch(const QString& sender);
    void forget(const QString& sender);
    void release(const QString& sender);

    std::shared_ptr<ApplicationCatalog> m_catalog;
    QDBusServiceWatcher m_senders;
    QHash<QString, Announced> m_badges; ///< by bundle identifier
};

} // namespace fendrel
