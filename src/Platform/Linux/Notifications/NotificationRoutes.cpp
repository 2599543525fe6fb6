#include "Platform/Linux/Notifications/NotificationRoutes.h"

#include "Platform/Linux/Notifications/NotificationText.h"

#include <algorithm>
#include <ranges>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace notificationMessage;

namespace {

constexpr qint64 rememberedNumbers = 4000; // more than any server shows; an older one is replaced by a new record
constexpr qsizetype rememberedAsks = 64;

/// Shown for a moment or again and again, and nothing that somebody would want to read later.
bool isPassing(const QVariantMap& hints) {
    const QString category = hints[u"category"_s].toString();
    const auto progress = hints.constFind(u"value"_s);
    return hints[u"transient"_s].toBool() || category == "transfer"_L1 || category == "transfer.progress"_L1 ||
           hints.contains(u"x-canonical-private-synchronous"_s) ||
           (progress != hints.constEnd() && progress->toInt() >= 0 && progress->toInt() <= 100);
}

ShownNotification withText(const QString& title, const QString& body) {
    return {.title = boundedTitle(title), .body = boundedBody(body)};
}

bool isEmpty(const ShownNotification& notification) {
    return notification.title.isEmpty() && notification.body.isEmpty();
}

} // namespace

std::optional<ShownNotification> NotificationRoutes::take(const NotificationMessage& message) {
    return std::visit([this](const auto& each) { return taken(each); }, message);
}

std::optional<ShownNotification> NotificationRoutes::taken(const Notify& message) {
    const Call call(message.sender, message.serial);
    // What the portal's part shows was counted when it was handed over, where its application is known.
    if (isPortalPart(message.sender) || isPassing(message.hints) || m_unanswered.contains(call))
        return {};
    auto shown = withText(message.summary, plainText(message.body));
    if (isEmpty(shown))
        return {};
    const auto replaced = m_byServerID.constFind(message.replaces);
    shown.number = replaced == m_byServerID.constEnd() ? ++m_last : *replaced;
    shown.sender = message.sender;
    shown.declaredEntry = message.hints[u"desktop-entry"_s].toString();
    if (shown.declaredEntry.endsWith(".desktop"_L1))
        shown.declaredEntry.chop(8);
    shown.appName = message.appName;
    shown.declaredProcess = message.hints[u"sender-pid"_s].toLongLong();
    shown.category = message.hints[u"category"_s].toString();
    shown.isUrgent = message.hints[u"urgency"_s].toInt() == 2;
    m_unanswered.insert(call, shown.number);
    forgetOld();
    return shown;
}

std::optional<ShownNotification> NotificationRoutes::taken(const Answer& message) {
    if (const auto number = m_unanswered.take({message.receiver, message.serial}); number != 0)
        m_byServerID.insert(message.id, number);
    return {};
}

std::optional<ShownNotification> NotificationRoutes::taken(const AskPortal& message) {
    m_atPortal.append(message);
    if (m_atPortal.size() > rememberedAsks)
        m_atPortal.removeFirst();
    return {};
}

std::optional<ShownNotification> NotificationRoutes::taken(const FromPortal& message) {
    QString sender;
    const auto ask = std::ranges::find(m_atPortal, message.id, &AskPortal::id);
    if (ask != m_atPortal.end()) {
        sender = ask->sender;
        m_atPortal.erase(ask);
    }
    return named(sender, message.application, message.id, message.content);
}

std::optional<ShownNotification> NotificationRoutes::taken(const AskShell& message) {
    if (isPortalPart(message.sender))
        return {};
    return named(message.sender, message.application, message.id, message.content);
}

std::optional<ShownNotification> NotificationRoutes::taken(const NewOwner& message) {
    if (message.name == notificationNames::server)
        m_byServerID.clear(); // another server counts from the start
    else if (message.owner.isEmpty())
        m_portalParts.remove(message.name);
    else
        m_portalParts.insert(message.name, message.owner);
    return {};
}

std::optional<ShownNotification> NotificationRoutes::named(const QString& sender, const QString& application,
                                                           const QString& id, const QVariantMap& content) {
    auto shown = withText(content[u"title"_s].toString(), content[u"body"_s].toString());
    if (const auto marked = content.constFind(u"markup-body"_s); marked != content.constEnd())
        shown.body = boundedBody(plainText(marked->toString()));
    if (isEmpty(shown) || content[u"display-hint"_s].toStringList().contains(u"transient"_s))
        return {};
    qint64& number = m_byName[{application.isEmpty() ? sender : application, id}];
    if (number == 0)
        number = ++m_last;
    shown.number = number;
    shown.sender = sender;
    shown.declaredEntry = application;
    shown.category = content[u"category"_s].toString();
    shown.isUrgent = content[u"priority"_s].toString() == "urgent"_L1 || content[u"urgent"_s].toBool();
    forgetOld();
    return shown;
}

bool NotificationRoutes::isPortalPart(const QString& sender) const {
    return std::ranges::find(m_portalParts, sender) != m_portalParts.end();
}

void NotificationRoutes::forgetOld() {
    const auto isOld = [this](const auto& each) { return each.value() < m_last - rememberedNumbers / 2; };
    if (m_unanswered.size() > rememberedNumbers)
        m_unanswered.removeIf(isOld);
    if (m_byServerID.size() > rememberedNumbers)
        m_byServerID.removeIf(isOld);
    if (m_byName.size() > rememberedNumbers)
        m_byName.removeIf(isOld);
}

} // namespace fendrel
