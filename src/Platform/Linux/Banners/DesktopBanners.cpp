#include "Platform/Linux/Banners/DesktopBanners.h"

#include "Platform/Linux/Banners/ConfigurationBanners.h"
#include "Platform/Linux/Banners/DunstBanners.h"
#include "Platform/Linux/Banners/PlasmaBanners.h"
#include "Platform/Linux/Banners/XfceBanners.h"
#include "Platform/Linux/Desktop/GSettingsConfiguration.h"

#include <QDBusConnection>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.Notifications"_s;

BannerKeeper::Switches allSwitches() {
    const QList<ConfigurationBanners::Setting> settings{
        {.server = u"gnome-shell"_s,
         .key = {.schema = u"org.gnome.desktop.notifications"_s, .key = u"show-banners"_s},
         .isQuietWhen = false},
        {.server = u"Notification Daemon"_s, // MATE's
         .key = {.schema = u"org.mate.NotificationDaemon"_s, .key = u"do-not-disturb"_s},
         .isQuietWhen = true},
    };
    BannerKeeper::Switches switches;
    switches.push_back(std::make_unique<DunstBanners>());
    switches.push_back(std::make_unique<XfceBanners>());
    switches.push_back(std::make_unique<PlasmaBanners>());
    const auto configuration = std::make_shared<GSettingsConfiguration>();
    for (const auto& setting : settings)
        switches.push_back(std::make_unique<ConfigurationBanners>(setting, configuration));
    return switches;
}

} // namespace

DesktopBanners::DesktopBanners(SettingsStore& store)
    : m_keeper(store, allSwitches()),
      m_watcher(service, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        m_question.reset();
        m_keeper.setServer({});
    });
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &DesktopBanners::ask);
    ask();
}

void DesktopBanners::ask() {
    auto question = QDBusMessage::createMethodCall(service, u"/org/freedesktop/Notifications"_s, service,
                                                   u"GetServerInformation"_s);
    question.setAutoStartService(false);
    m_question = callOnBus(question, {}, [this](const QDBusMessage& reply) {
        const bool isServer = reply.type() == QDBusMessage::ReplyMessage && reply.signature().startsWith(u's');
        m_keeper.setServer(isServer ? reply.arguments().constFirst().toString() : QString());
    });
}

} // namespace fendrel
