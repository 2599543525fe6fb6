#include "Messages/HeldMessages.h"

#include "Base/Log.h"
#include "Messages/NotificationContent.h"
#include "Messages/Owner.h"
#include "Messages/UrgencyQuestion.h"

#include <algorithm>
#include <cmath>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto readInterval = 2s;
constexpr auto readTolerance = 400ms;
constexpr auto digestStays = 15s;
constexpr auto digestStaysAfterHover = 4s;

// A mode that is never entered would collect for ever, and a model that is slower than what comes never catch up.
constexpr qsizetype mostHeld = 500; // for each mode
constexpr std::size_t mostToJudge = 100;

WallTime deliveryTime(double date) {
    constexpr double farthest = 1e11; // some thousand years
    const double since = std::abs(date) < farthest ? date : 0;
    return referenceDate + std::chrono::milliseconds(std::llround(since * 1000));
}

} // namespace

HeldMessages::HeldMessages(NotificationLog& log, LanguageModel& model, Clock& clock, const QSet<QString>& sharedApps)
    : m_log(log), m_model(model), m_clock(clock), m_reader(log.databasePath()), m_worker(u"heldmessages"_s) {
    for (const QString& app : sharedApps)
        m_sharedApps.insert(app.toLower());
    m_log.onChanged = [this] {
        m_isReadWanted = m_isReading;
        refresh();
    };
    refresh();
}

HeldMessages::~HeldMessages() {
    m_log.onChanged = [] {};
}

QString HeldMessages::unavailableReason() const {
    if (const QString reason = m_log.unavailableReason(); !reason.isEmpty())
        return reason;
    return m_canRead ? QString() : tr("The record of notifications can't be read.");
}

void HeldMessages::refresh() {
    scheduleReads();
    if (!m_log.unavailableReason().isEmpty()) {
        setCanRead(false);
        return;
    }
    if (m_isReading)
        return;
    m_isReading = true;
    m_worker.post({}, [this] {
        QMetaObject::invokeMethod(
            this,
            [this, rows = m_reader.read()] {
                received(rows);
                m_isReading = false;
                if (std::exchange(m_isReadWanted, false))
                    refresh();
            },
            Qt::QueuedConnection);
    });
}

/// What says itself when there is something to read is left alone until then, unless the last read failed.
void HeldMessages::scheduleReads() {
    const bool hasFailed = !m_canRead && m_log.unavailableReason().isEmpty();
    if (m_log.tellsChanges() && !hasFailed)
        m_timer.reset();
    else if (!m_timer)
        m_timer = m_clock.every(readInterval, readTolerance, [this] { refresh(); });
}

void HeldMessages::setCanRead(bool canRead) {
    if (std::exchange(m_canRead, canRead) != canRead)
        Q_EMIT changed();
}

void HeldMessages::received(const std::optional<Rows>& rows) {
    setCanRead(rows && m_log.unavailableReason().isEmpty()); // which may have changed during the read
    scheduleReads();
    const auto mode = current();
    if (!rows || rows->isEmpty() || isQuiet() || !mode)
        return;
    if (!m_stretchMode)
        m_stretchMode = mode;
    const QList<Mode> all = modes();
    const BreakThrough words(breakThrough());
    for (const NotificationRow& row : *rows)
        hold(row, *mode, all, words);
    Q_EMIT changed();
}

void HeldMessages::hold(const NotificationRow& row, const Mode& work, const QList<Mode>& all,
                        const BreakThrough& words) {
    const Mode* mode = owner(row.app, work, all, m_sharedApps);
    const auto content = mode ? request(row.data) : std::nullopt;
    if (!content || (content->isCritical && passCritical()))
        return;
    const Message message{.id = row.id,
                          .bundleID = row.app,
                          .title = content->title,
                          .subtitle = content->subtitle,
                          .body = content->body,
                          .date = deliveryTime(row.date)};
    // A notification that was replaced comes again, with the same id.
    auto& messages = m_held[mode->id];
    messages.removeIf([&](const Message& other) { return other.id == message.id; });
    messages.append(message);
    if (messages.size() > mostHeld)
        forget(messages.takeFirst().id);
    forget(message.id); // what was said of the one that it replaces
    m_heldInStretch.insert(message.id);
    if (const auto reason = words.reason(message)) {
        raise(message, *mode, *reason);
        onShow();
    } else {
        judge(message, *mode);
    }
}

void HeldMessages::forget(qint64 id) {
    m_heldInStretch.remove(id);
    m_urgent.remove(id);
    if (m_alert && m_alert->message.id == id)
        m_alert.reset();
}

void HeldMessages::raise(const Message& message, const Mode& mode, const QString& why) {
    m_urgent[message.id] = why;
    m_alert = Alert{.id = QUuid::createUuid(), .message = message, .mode = mode, .why = why, .wait = entryDelay(mode)};
}

void HeldMessages::judge(const Message& message, const Mode& mode) {
    if (!m_model.isAvailable())
        return;
    m_toJudge.emplace_back(message, mode);
    if (m_toJudge.size() > mostToJudge)
        m_toJudge.erase(m_toJudge.begin());
    judgeNext();
}

bool HeldMessages::isHeld(const Message& message, const Mode& mode) const {
    return m_held.value(mode.id).contains(message);
}

void HeldMessages::judgeNext() {
    while (!m_isJudging && !m_toJudge.empty()) {
        const Message message = m_toJudge.back().first;
        const Mode mode = m_toJudge.back().second;
        m_toJudge.pop_back();
        if (!isHeld(message, mode))
            continue;
        m_isJudging = true;
        m_question = m_model.ask(UrgencyQuestion::about(message),
                                 [this, message, mode](const auto& answer) { judged(message, mode, answer); });
    }
}

void HeldMessages::judged(const Message& message, const Mode& mode,
                          const Result<LanguageModel::Answer, QString>& answer) {
    m_isJudging = false;
    if (!answer) {
        qCWarning(logMessages).noquote() << "Model couldn't judge a message:" << answer.error();
    } else if (const auto urgency = UrgencyQuestion::urgency(*answer); urgency.urgent && isHeld(message, mode)) {
        raise(message, mode, urgency.why);
        Q_EMIT changed();
    }
    judgeNext();
}

std::optional<QString> HeldMessages::modeChanged(const Mode& mode) {
    showDigest();
    m_stretchMode = mode;
    m_heldInStretch.clear();
    m_held.remove(mode.id);
    if (m_alert && m_alert->mode.id == mode.id)
        m_alert.reset();
    QSet<qint64> stillHeld;
    for (const auto& messages : std::as_const(m_held)) {
        for (const Message& message : messages)
            stillHeld.insert(message.id);
    }
    m_urgent.removeIf([&](const auto& entry) { return !stillHeld.contains(entry.key()); });
    const auto entry = std::exchange(m_entry, {});
    Q_EMIT changed();
    return entry && entry->modeID == mode.id ? std::optional(entry->bundleID) : std::nullopt;
}

void HeldMessages::modesEdited() {
    const QList<Mode> all = modes();
    const auto find = [&](const QString& id) { return std::ranges::find(all, id, &Mode::id); };
    m_held.removeIf([&](const auto& entry) { return find(entry.key()) == all.end(); });
    if (m_alert) {
        if (const auto mode = find(m_alert->mode.id); mode != all.end())
            m_alert->mode = *mode;
        else
            m_alert.reset();
    }
    Q_EMIT changed();
}

/// Of the stretch that ends now.
void HeldMessages::showDigest() {
    if (!m_stretchMode)
        return;
    Digest digest{.id = QUuid::createUuid(), .mode = *m_stretchMode};
    for (const auto& messages : std::as_const(m_held)) {
        for (const Message& message : messages) {
            if (!m_heldInStretch.contains(message.id))
                continue;
            digest.messages.append(message);
            if (const auto why = m_urgent.constFind(message.id); why != m_urgent.cend())
                digest.urgent.insert(message.id, *why);
        }
    }
    if (digest.messages.isEmpty())
        return;
    std::ranges::sort(digest.messages, std::ranges::greater{},
                      [](const Message& message) { return std::pair(message.date, message.id); });
    m_digest = std::move(digest);
    if (!m_isHovered && !m_isHidden)
        hideDigest(digestStays);
}

void HeldMessages::hideDigest(Clock::Duration after) {
    m_digestHide = m_clock.after(after, [this] { dismissDigest(); });
}

void HeldMessages::setHovered(bool isHovered) {
    if (std::exchange(m_isHovered, isHovered) == isHovered || !m_digest)
        return;
    if (isHovered)
        m_digestHide.reset();
    else if (!m_isHidden)
        hideDigest(digestStaysAfterHover);
}

void HeldMessages::setHidden(bool isHidden) {
    if (std::exchange(m_isHidden, isHidden) == isHidden || !m_digest)
        return;
    if (isHidden)
        m_digestHide.reset();
    else if (!m_isHovered)
        hideDigest(digestStays);
}

void HeldMessages::go() {
    if (!m_alert)
        return;
    const Alert alert = *std::exchange(m_alert, std::nullopt);
    setHovered(false);
    m_entry = Entry{.modeID = alert.mode.id, .bundleID = alert.message.bundleID};
    Q_EMIT changed();
    onSwitch(alert.mode);
}

void HeldMessages::headingFor(const QString& modeID) {
    if (m_entry && m_entry->modeID != modeID)
        m_entry.reset();
}

void HeldMessages::open(const Message& message) {
    onOpen(message.bundleID);
}

void HeldMessages::dismissAlert() {
    if (!m_alert)
        return;
    m_alert.reset();
    Q_EMIT changed();
}

void HeldMessages::dismissDigest() {
    m_digestHide.reset();
    if (!m_digest)
        return;
    m_digest.reset();
    m_isHovered = false;
    Q_EMIT changed();
}

} // namespace fendrel
