#include "Platform/Linux/Desktop/LauncherEntries.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>

#include <algorithm>
#include <cmath>
#include <limits>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

std::optional<qint64> wholeNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return std::max<qint64>(value.toLongLong(), 0);
    case QMetaType::ULongLong:
        return static_cast<qint64>(std::min(value.toULongLong(), qulonglong{std::numeric_limits<qint64>::max()}));
    default:
        return {};
    }
}

void takeFlag(bool& flag, const QVariant& value) {
    if (value.typeId() == QMetaType::Bool)
        flag = value.toBool();
}

} // namespace

void LauncherProperties::take(const QVariantMap& changes) {
    if (const auto number = wholeNumber(changes[u"count"_s]))
        count = number;
    if (const QVariant part = changes[u"progress"_s];
        part.typeId() == QMetaType::Double && !std::isnan(part.toDouble()))
        progress = std::clamp(part.toDouble(), 0.0, 1.0);
    takeFlag(showsCount, changes[u"count-visible"_s]);
    takeFlag(showsProgress, changes[u"progress-visible"_s]);
    takeFlag(isUrgent, changes[u"urgent"_s]);
}

AppBadge LauncherProperties::badge() const {
    return {.count = showsCount ? count : std::nullopt,
            .progress = showsProgress ? progress : std::nullopt,
            .isUrgent = isUrgent};
}

LauncherEntries::LauncherEntries(std::shared_ptr<ApplicationCatalog> catalog) : m_catalog(std::move(catalog)) {
    auto bus = QDBusConnection::sessionBus();
    m_senders.setConnection(bus);
    m_senders.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_senders, &QDBusServiceWatcher::serviceUnregistered, this, &LauncherEntries::forget);
    bus.connect({}, {}, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s, this,
                SLOT(update(QString, QVariantMap, QDBusMessage)));
    // Many programs announce nothing before somebody has this name, and everything anew when another one gets it. A
    // dock that had it and lets it go has it again when we end.
    constexpr uint allowReplacement = 1;
    constexpr uint replaceExisting = 2;
    const QString daemon = u"org.freedesktop.DBus"_s;
    auto request = QDBusMessage::createMethodCall(daemon, u"/org/freedesktop/DBus"_s, daemon, u"RequestName"_s);
    request << u"com.canonical.Unity"_s << (allowReplacement | replaceExisting);
    bus.send(request);
}

void LauncherEntries::update(const QString& application, const QVariantMap& properties, const QDBusMessage& message) {
    const auto bundleID = m_catalog->identifierAt(QUrl(application));
    if (!bundleID)
        return;
    Announced& announced = m_badges[*bundleID];
    const AppBadge before = announced.said.badge();
    if (announced.sender != message.service()) {
        const QString former = std::exchange(announced, {.sender = message.service(), .said = {}}).sender;
        release(former);
        watch(message.service());
    }
    announced.said.take(properties);
    if (announced.said.badge() != before)
        onChanged(*bundleID);
}

void LauncherEntries::watch(const QString& sender) {
    m_senders.addWatchedService(sender);
    // It may be gone already, and then nobody tells.
    const QString daemon = u"org.freedesktop.DBus"_s;
    auto question = QDBusMessage::createMethodCall(daemon, u"/org/freedesktop/DBus"_s, daemon, u"NameHasOwner"_s);
    question << sender;
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, sender] {
        const QDBusReply<bool> isThere = answer->reply();
        answer->deleteLater();
        if (isThere.isValid() && !isThere.value())
            forget(sender);
    });
}

void LauncherEntries::forget(const QString& sender) {
    QStringList changed;
    m_badges.removeIf([&](const auto& item) {
        const bool isTheirs = item->sender == sender;
        if (isTheirs && item->said.badge() != AppBadge())
            changed.append(item.key());
        return isTheirs;
    });
    m_senders.removeWatchedService(sender);
    for (const QString& bundleID : changed)
        onChanged(bundleID);
}

void LauncherEntries::release(const QString& sender) {
    if (std::ranges::none_of(m_badges, [&](const Announced& announced) { return announced.sender == sender; }))
        m_senders.removeWatchedService(sender);
}

} // namespace fendrel
