#include "Platform/Linux/Notifications/NotificationRecorder.h"

#include "Base/Log.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype mostProcesses = 500;
constexpr auto retryDelay = std::chrono::seconds(5);
} // namespace

NotificationRecorder::NotificationRecorder(const QString& folder, std::shared_ptr<const ApplicationCatalog> catalog,
                                           Clock& clock)
    : m_clock(clock),
      m_senders(std::move(catalog)),
      m_monitor(NotificationMonitor::sessionBus(), clock),
      m_store(folder),
      m_worker(u"notifications"_s) {
    m_monitor.onMessage = [this](const NotificationMessage& message) { heard(message); };
    m_monitor.onUnavailable = [this] { onChanged(); };
    m_worker.post({}, [this, now = m_clock.now()] {
        const QString problem = m_store.open(now);
        QMetaObject::invokeMethod(
            this, [this, problem] { written(problem, {}); }, Qt::QueuedConnection);
    });
}

NotificationRecorder::~NotificationRecorder() {
    m_worker.post({}, [this, records = m_unwritten] {
        if (!records.isEmpty())
            m_store.write(records);
    });
}

QString NotificationRecorder::unavailableReason() const {
    if (!m_monitor.unavailableReason().isEmpty())
        return m_monitor.unavailableReason();
    return m_storeProblem.isEmpty()
               ? QString()
               : QCoreApplication::translate("Notifications", "Notifications can't be kept (%1).").arg(m_storeProblem);
}

void NotificationRecorder::heard(const NotificationMessage& message) {
    // At once: some programs do nothing but notify, and are gone in a moment.
    if (const auto* ask = std::get_if<notificationMessage::AskPortal>(&message))
        askProcess(ask->sender);
    auto shown = m_routes.take(message);
    if (!shown)
        return;
    askProcess(shown->sender);
    m_arrivals.push_back({.notification = *std::move(shown), .date = m_clock.now()});
    name();
}

void NotificationRecorder::askProcess(const QString& sender) {
    if (sender.isEmpty() || m_processes.contains(sender) || m_asked.contains(sender))
        return;
    m_asked.insert(sender);
    auto question = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                   u"org.freedesktop.DBus"_s, u"GetConnectionUnixProcessID"_s);
    question << sender;
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, sender, answer] {
        const QDBusPendingReply<uint> reply = *answer;
        answer->deleteLater();
        learned(sender, reply.isValid() ? ProcessFacts::read(reply.value()) : ProcessFacts());
    });
}

void NotificationRecorder::learned(const QString& sender, const ProcessFacts& process) {
    m_asked.remove(sender);
    m_processes.insert(sender, process);
    name();
    if (m_processes.size() > mostProcesses && m_arrivals.empty())
        m_processes.clear(); // they are asked again
}

void NotificationRecorder::name() {
    while (!m_arrivals.empty()) {
        const auto& [notification, date] = m_arrivals.front();
        const auto known = m_processes.constFind(notification.sender);
        if (!notification.sender.isEmpty() && known == m_processes.constEnd())
            break;
        auto process = notification.sender.isEmpty() ? ProcessFacts() : *known;
        if (process.executable.isEmpty() && notification.declaredProcess > 0)
            process = ProcessFacts::read(notification.declaredProcess);
        m_unwritten.append({.number = notification.number,
                            .application = m_senders.application(notification, process),
                            .isCritical = m_senders.isCritical(notification, process),
                            .title = notification.title,
                            .body = notification.body,
                            .date = date});
        m_arrivals.pop_front();
    }
    write();
}

void NotificationRecorder::write() {
    if (m_isWriting || m_unwritten.isEmpty())
        return;
    m_isWriting = true;
    m_worker.post({}, [this, records = std::exchange(m_unwritten, {})] {
        const QString problem = m_store.write(records);
        QMetaObject::invokeMethod(
            this, [this, problem, records] { written(problem, records); }, Qt::QueuedConnection);
    });
}

void NotificationRecorder::written(const QString& problem, const QList<NotificationRecord>& records) {
    m_isWriting = false;
    if (problem != m_storeProblem && !problem.isEmpty())
        qCWarning(logDesktop).noquote() << "Couldn't keep notifications:" << problem;
    m_storeProblem = problem;
    if (problem.isEmpty()) {
        write(); // what came meanwhile
    } else {
        m_unwritten = records + m_unwritten;
        if (m_unwritten.size() > NotificationStore::mostRecords)
            m_unwritten.remove(0, m_unwritten.size() - NotificationStore::mostRecords);
        m_retry = m_clock.after(retryDelay, [this] { write(); });
    }
    onChanged();
}

} // namespace fendrel
