#include "Platform/Linux/Banners/BannerKeeper.h"

#include "Base/EnumNames.h"
#include "Base/Log.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

const QString key = u"savedBanners"_s;

} // namespace

BannerKeeper::BannerKeeper(SettingsStore& store, Switches switches) : m_store(store), m_switches(std::move(switches)) {
    const auto saved = QJsonDocument::fromJson(store.read<QByteArray>(key).value_or(QByteArray())).object();
    for (auto entry = saved.begin(); entry != saved.end(); ++entry) {
        if (const auto before = enumValue<Banners>(entry.value().toString()))
            m_saved.insert(entry.key(), *before);
    }
    queueSaved();
    proceed();
}

BannerKeeper::~BannerKeeper() {
    m_isBusy = false;
    m_isQuiet = false;
    m_deadline = QDeadlineTimer(400ms);
    queueSaved();
    proceed();
}

void BannerKeeper::setQuiet(bool isQuiet) {
    if (std::exchange(m_isQuiet, isQuiet) == isQuiet)
        return;
    queue(m_server);
    proceed();
}

void BannerKeeper::setServer(const QString& name) {
    queue(std::exchange(m_server, name));
    queue(name);
    proceed();
}

void BannerKeeper::queue(const QString& server) {
    const auto found = std::ranges::find(m_switches, server, [](const auto& banners) { return banners->server(); });
    if (found != m_switches.end() && !m_queue.contains(found->get()))
        m_queue.append(found->get());
}

void BannerKeeper::queueSaved() {
    for (auto entry = m_saved.cbegin(); entry != m_saved.cend(); ++entry)
        queue(entry.key());
}

void BannerKeeper::proceed() {
    if (m_isBusy || m_queue.isEmpty() || (m_deadline && m_deadline->hasExpired()))
        return;
    m_isBusy = true;
    BannerSwitch& next = *m_queue.takeFirst();
    m_reading = next.read(m_deadline, [this, &next](std::optional<Banners> now) { settle(next, now); });
}

void BannerKeeper::settle(BannerSwitch& banners, std::optional<Banners> now) {
    const QString server = banners.server();
    const bool isToBeQuiet = m_isQuiet && server == m_server;
    const auto saved = m_saved.constFind(server);
    if (now && isToBeQuiet && *now != Banners::quiet) {
        save(server, now);
        m_writing = banners.write(Banners::quiet, m_deadline, [this](bool) { finish(); });
    } else if (now == Banners::quiet && !isToBeQuiet && saved != m_saved.cend()) {
        m_writing = banners.write(*saved, m_deadline, [this, server](bool isWritten) {
            if (isWritten)
                save(server, {});
            else
                qCWarning(logDesktop) << "Couldn't give back the banners of" << server;
            finish();
        });
    } else {
        if (now && !isToBeQuiet)
            save(server, {});
        finish();
    }
}

void BannerKeeper::finish() {
    m_isBusy = false;
    proceed();
}

void BannerKeeper::save(const QString& server, std::optional<Banners> before) {
    const auto saved = m_saved;
    if (before)
        m_saved.insert(server, *before);
    else
        m_saved.remove(server);
    if (m_saved == saved)
        return;
    if (m_saved.isEmpty())
        return m_store.remove(key);
    QJsonObject entries;
    for (auto entry = m_saved.cbegin(); entry != m_saved.cend(); ++entry)
        entries.insert(entry.key(), enumName(*entry));
    m_store.set(key, QJsonDocument(entries).toJson(QJsonDocument::Compact));
}

} // namespace fendrel
