#pragma once

#include "Base/Worker.h"
#include "Platform/Linux/Notifications/NotificationMonitor.h"
#include "Platform/Linux/Notifications/NotificationSenders.h"
#include "Platform/Linux/Notifications/NotificationStore.h"
#include "Ports/Clock.h"
#include "Ports/NotificationLog.h"

#include <QObject>

#include <deque>

namespace fendrel {

/// Keeps the log of notifications itself, because no desktop here does: what the monitor hears is told apart, named and
/// stored in the order in which it came.
class NotificationRecorder : public QObject, public NotificationLog {
    Q_OBJECT
public:
    NotificationRecorder(const QString& folder, std::shared_ptr<const ApplicationCatalog> catalog, Clock& clock);
    ~NotificationRecorder() override;

    QString databasePath() const override { return m_store.path(); }
    QString unavailableReason() const override;
    bool tellsChanges() const override { return true; }

private:
    struct Arrival {
        ShownNotification notification{};
        WallTime date{};
    };

    void heard(const NotificationMessage& message);
    void askProcess(const QString& sender);
    void learned(const QString& sender, const ProcessFacts& process);
    void name();
    void write();
    void written(const QString& problem, const QList<NotificationRecord>& records);

    Clock& m_clock;
    NotificationSenders m_senders;
    NotificationRoutes m_routes;
    std::deque<Arrival> m_arrivals;           ///< not named yet
    QHash<QString, ProcessFacts> m_processes; ///< sender -> what it is; a name on the bus is never given again
    QSet<QString> m_asked;
    QList<NotificationRecord> m_unwritten;
    bool m_isWriting = true; ///< or opening
    QString m_storeProblem;
    Handle m_retry;
    NotificationMonitor m_monitor;
    NotificationStore m_store; ///< the worker's alone
    Worker m_worker;
};

} // namespace fendrel
