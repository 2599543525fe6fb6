#pragma once

#include "Base/Worker.h"
#include "Messages/BreakThrough.h"
#include "Messages/HeldMessage.h"
#include "Messages/NotificationReader.h"
#include "Ports/Clock.h"
#include "Ports/LanguageModel.h"
#include "Ports/NotificationLog.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace fendrel {

/// Holds the notifications of other modes' applications until the user enters their mode, shows what was held when a
/// stretch of work ends, and lets through what is urgent. Main thread; the log is read on a worker of its own.
class HeldMessages : public QObject {
    Q_OBJECT
public:
    using Message = HeldMessage;
    using Alert = MessageAlert;
    using Digest = MessageDigest;

    /// `sharedApps` are the identifiers of what belongs to every mode.
    HeldMessages(NotificationLog& log, LanguageModel& model, Clock& clock, const QSet<QString>& sharedApps);
    ~HeldMessages() override;

    std::function<std::optional<Mode>()> current = [] { return std::optional<Mode>(); };
    std::function<QList<Mode>()> modes = [] { return QList<Mode>(); };
    std::function<bool()> isQuiet = [] { return false; }; ///< nothing may be held now
    std::function<Seconds(const Mode&)> entryDelay = [](const Mode& mode) { return mode.entryDelay; };
    std::function<void(const Mode&)> onSwitch = [](const Mode&) {};
    std::function<void(const QString& bundleID)> onOpen = [](const QString&) {};
    std::function<void()> onShow = [] {}; ///< a break-through word raised an alert
    std::function<QStringList()> breakThrough = [] { return QStringList(); };
    std::function<bool()> passCritical = [] { return false; };

    const QHash<QString, QList<Message>>& held() const { return m_held; } ///< mode id -> messages, oldest first
    qsizetype count(const Mode& mode) const { return m_held.value(mode.id).size(); }
    /// Why a message is urgent, for all messages that are.
    const QHash<qint64, QString>& urgent() const { return m_urgent; }
    const std::optional<Alert>& alert() const { return m_alert; }
    const std::optional<Digest>& digest() const { return m_digest; }
    bool canRead() const { return m_canRead; } ///< false until a read succeeds
    QString unavailableReason() const;         ///< for the user; empty while `canRead`
    bool isHovered() const { return m_isHovered; }

    void refresh();
    /// After every switch. Returns the application that `go` led to, which is to come to the front now.
    std::optional<QString> modeChanged(const Mode& mode);
    void modesEdited(); ///< forgets what was held for modes that are gone
    void go();          ///< to the alert's mode, and once there to the message's application
    void dismissAlert();
    void dismissDigest();
    void open(const Message& message); ///< brings its application to the front
    void setHovered(bool isHovered);   ///< the pointer is over the digest's card
    void setHidden(bool isHidden);     ///< no card is seen now, so that no time of a digest runs
    /// The mode that the user is on the way to, or in: what `go` began and somebody took back is forgotten.
    void headingFor(const QString& modeID);

Q_SIGNALS:
    void changed();

private:
    using Rows = QList<NotificationRow>;

    void received(const std::optional<Rows>& rows);
    void scheduleReads();
    void hold(const NotificationRow& row, const Mode& work, const QList<Mode>& all, const BreakThrough& words);
    void setCanRead(bool canRead);
    void forget(qint64 id);
    void raise(const Message& message, const Mode& mode, const QString& why);
    void judge(const Message& message, const Mode& mode);
    void judgeNext();
    void judged(const Message& message, const Mode& mode, const Result<LanguageModel::Answer, QString>& answer);
    bool isHeld(const Message& message, const Mode& mode) const;
    void showDigest();
    void hideDigest(Clock::Duration after);

    NotificationLog& m_log;
    LanguageModel& m_model;
    Clock& m_clock;
    QSet<QString> m_sharedApps;
    QHash<QString, QList<Message>> m_held;
    std::optional<Alert> m_alert;
    std::optional<Digest> m_digest;
    bool m_canRead = false;
    bool m_isHovered = false;
    bool m_isHidden = false;
    bool m_isReading = false;
    bool m_isReadWanted = false;       ///< the log told of news while it was being read
    std::optional<Mode> m_stretchMode; ///< the mode since the last switch
    QSet<qint64> m_heldInStretch;
    QHash<qint64, QString> m_urgent;
    std::vector<std::pair<Message, Mode>> m_toJudge; ///< the last is judged first
    bool m_isJudging = false;
    Handle m_question;
    Handle m_digestHide;
    std::optional<Handle> m_timer; ///< while the log has to be looked at again and again
    /// What is opened once its mode is entered.
    struct Entry {
        QString modeID{};
        QString bundleID{};
    };
    std::optional<Entry> m_entry;
    NotificationReader m_reader; ///< the worker's alone
    Worker m_worker;             ///< the last: nothing it posts arrives once it has ended
};

} // namespace fendrel
