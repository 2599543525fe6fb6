#include "Platform/Linux/Desktop/PortalLook.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QMap>
#include <QVariantMap>

#include <algorithm>
#include <cmath>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString gnomeInterface = u"org.gnome.desktop.interface"_s;
const ConfigurationKey textScalingFactor{.schema = gnomeInterface, .key = u"text-scaling-factor"_s};

} // namespace

Look lookFrom(const PortalWishes& portal, const QString& themeName, std::optional<bool> prefersDark,
              std::optional<bool> animates) {
    const bool isDarkTheme = themeName.contains("dark"_L1, Qt::CaseInsensitive) || prefersDark.value_or(false);
    const uint scheme = portal.colorScheme.value_or(0);
    const bool isAnimated = portal.animates.value_or(true) && animates.value_or(true);
    // GTK's own is called HighContrast, and so are those that follow it.
    const bool isContrastTheme = themeName.contains("contrast"_L1, Qt::CaseInsensitive);
    return {.isDark = scheme == 0 ? isDarkTheme : scheme == 1,
            .reducesMotion = portal.reducedMotion == 1U || !isAnimated,
            .increasesContrast = portal.contrast == 1U || isContrastTheme};
}

double textScaleFrom(std::optional<double> wanted, double drawnScale) {
    const bool isDrawn = std::abs(drawnScale - 1) > 0.01;
    const bool isUsable = wanted && std::isfinite(*wanted);
    return isDrawn || !isUsable ? 1 : std::clamp(*wanted, 0.5, 3.0);
}

PortalLook::PortalLook(std::shared_ptr<DesktopSettings> settings, std::shared_ptr<DesktopConfiguration> configuration)
    : m_settings(std::move(settings)),
      m_configuration(std::move(configuration)),
      m_configurationWatch(m_configuration->watch(textScalingFactor, [this] { refresh(); })),
      m_portal(service, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration) {
    connect(m_settings.get(), &DesktopSettings::changed, this, &PortalLook::refresh);
    connect(&m_portal, &QDBusServiceWatcher::serviceRegistered, this, &PortalLook::ask);
    QDBusConnection::sessionBus().connect(service, path, interface, u"SettingChanged"_s, this,
                                          SLOT(settingChanged(QString, QString, QDBusVariant)));
    refresh();
    ask();
}

void PortalLook::ask() {
    auto question = QDBusMessage::createMethodCall(service, path, interface, u"ReadAll"_s);
    question << QStringList{appearance, gnomeInterface};
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusMessage reply = answer->reply();
        answer->deleteLater();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != "a{sa{sv}}"_L1)
            return;
        const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst());
        for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
            for (auto item = group->cbegin(); item != group->cend(); ++item)
                take(group.key(), item.key(), item.value());
        }
        refresh();
    });
}

void PortalLook::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    take(group, key, value.variant());
    refresh();
}

void PortalLook::take(const QString& group, const QString& key, const QVariant& value) {
    if (group == appearance && key == "color-scheme"_L1)
        m_wishes.colorScheme = value.toUInt();
    else if (group == appearance && key == "reduced-motion"_L1)
        m_wishes.reducedMotion = value.toUInt();
    else if (group == appearance && key == "contrast"_L1)
        m_wishes.contrast = value.toUInt();
    else if (group == gnomeInterface && key == "enable-animations"_L1)
        m_wishes.animates = value.toBool();
    else if (group == gnomeInterface && key == textScalingFactor.key)
        m_wishes.textScale = value.toDouble();
}

void PortalLook::refresh() {
    Look look = lookFrom(m_wishes, m_settings->themeName(), m_settings->prefersDark(), m_settings->animates());
    auto wantedScale = m_wishes.textScale;
    if (const auto configured = wantedScale ? std::nullopt : m_configuration->value(textScalingFactor))
        wantedScale = configured->toDouble();
    look.textScale = textScaleFrom(wantedScale, m_settings->drawnScale());
    if (std::exchange(m_look, look) != look)
        onChanged();
}

} // namespace fendrel
