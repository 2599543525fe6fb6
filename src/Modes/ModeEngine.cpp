#include "Modes/ModeEngine.h"

#include "Modes/ModeStore.h"
#include "Ports/SettingsStore.h"

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString currentKey = u"currentModeID"_s;
const QString addedAppsKey = u"addedApps"_s;

template<class Item>
bool appendNew(QList<Item>& list, const Item& item) {
    if (list.contains(item))
        return false;
    list.append(item);
    return true;
}

} // namespace

ModeEngine::ModeEngine(ModeStore& store, SettingsStore& settings, Clock& clock, ModeCatalog catalog,
                       std::function<bool(const QString&)> isInstalled)
    : m_store(store),
      m_settings(settings),
      m_clock(clock),
      m_catalog(std::move(catalog)),
      m_isInstalled(std::move(isInstalled)),
      m_modes(store.load()),
      m_startedWithoutModes(m_modes.isEmpty()) {
    if (m_startedWithoutModes) {
        for (const Mode& starter : m_catalog.starterTemplates())
            m_modes.append(seeded(starter));
    }
    seedMissingParts();
    m_current = m_modes.first();
    if (const Mode* last = mode(m_settings.read<QString>(currentKey).value_or(QString())))
        m_current = *last;
    didEdit();
}

/// Modes that were saved before they had sites, widgets or budgets get those of their template, once.
void ModeEngine::seedMissingParts() {
    struct Seeding {
        QString flag;
        bool (*isMissing)(const Mode&);
        void (*fill)(Mode&, const Mode& modeTemplate);
    };
    const Seeding seedings[] = {
        {u"sitesSeeded"_s, [](const Mode& mode) { return mode.sites.isEmpty(); },
         [](Mode& mode, const Mode& modeTemplate) { mode.sites = modeTemplate.sites; }},
        {u"widgetsSeeded"_s, [](const Mode& mode) { return mode.widgets.isEmpty(); },
         [](Mode& mode, const Mode& modeTemplate) { mode.widgets = modeTemplate.widgets; }},
        {u"budgetsSeeded"_s, [](const Mode& mode) { return mode.dailyBudget == Seconds{}; },
         [](Mode& mode, const Mode& modeTemplate) { mode.dailyBudget = modeTemplate.dailyBudget; }},
    };
    for (const Seeding& seeding : seedings) {
        if (m_settings.flag(seeding.flag))
            continue;
        m_settings.set(seeding.flag, true);
        for (Mode& mode : m_modes) {
            const auto found = std::ranges::find(m_catalog.templates, mode.name, &Mode::name);
            if (found != m_catalog.templates.end() && seeding.isMissing(mode))
                seeding.fill(mode, *found);
        }
    }
}

Mode ModeEngine::seeded(const Mode& modeTemplate) const {
    const auto added = m_settings.read<QStringList>(addedAppsKey).value_or(QStringList());
    return modeTemplate.keepingInstalledApps(
        [&](const QString& bundleID) { return m_isInstalled(bundleID) || added.contains(bundleID); });
}

Seconds ModeEngine::pendingRemaining() const {
    if (!m_pending)
        return {};
    return std::max(Seconds{}, Seconds(m_pending->due - m_clock.continuousNow()));
}

void ModeEngine::requestSwitch(const Mode& target) {
    constexpr auto cut = 3s;
    if (target.id == m_current.id) {
        cancelPending();
        return;
    }
    if (m_pending && m_pending->target.id == target.id) {
        m_pending->due -= cut;
        schedule();
        return;
    }
    const Seconds delay = entryDelay(target);
    if (delay <= Seconds{}) {
        commit(target);
        return;
    }
    m_pending = PendingSwitch{
        .target = target,
        .due = m_clock.continuousNow() + std::chrono::duration_cast<Clock::Duration>(delay),
    };
    schedule();
}

void ModeEngine::cancelPending() {
    m_wait.reset();
    if (!m_pending)
        return;
    m_pending.reset();
    Q_EMIT changed();
}

void ModeEngine::schedule() {
    m_wait.reset();
    const auto remaining = m_pending->due - m_clock.continuousNow();
    if (remaining <= 0s) {
        commit(Mode(m_pending->target));
        return;
    }
    m_wait = m_clock.after(remaining, [this] {
        if (m_pending)
            commit(Mode(m_pending->target));
    });
    Q_EMIT changed();
}

void ModeEngine::commit(const Mode& mode) {
    const Mode* freshest = this->mode(mode.id);
    m_current = freshest ? *freshest : Mode(mode);
    m_wait.reset();
    m_pending.reset();
    m_currentPosition = freshest ? freshest - m_modes.constData() : -1;
    m_settings.set(currentKey, m_current.id);
    Q_EMIT changed();
    onCommit(m_current);
}

const Mode* ModeEngine::mode(const QString& id) const {
    const auto found = std::ranges::find(m_modes, id, &Mode::id);
    return found == m_modes.end() ? nullptr : &*found;
}

const Mode* ModeEngine::owner(const QString& bundleID) const {
    const auto position = m_index.ownerOfApp(bundleID);
    return position ? &m_modes[*position] : nullptr;
}

const Mode* ModeEngine::listing(const QString& bundleID) const {
    const auto position = m_index.ownerOfApp(bundleID, m_currentPosition);
    return position ? &m_modes[*position] : nullptr;
}

const Mode* ModeEngine::listingSite(const QString& host) const {
    const auto position = m_index.ownerOfSite(host, m_currentPosition);
    return position ? &m_modes[*position] : nullptr;
}

void ModeEngine::edit(const QString& modeID, const std::function<bool(Mode&)>& change) {
    const auto found = std::ranges::find(m_modes, modeID, &Mode::id);
    if (found != m_modes.end() && change(*found))
        didEdit();
}

void ModeEngine::addApp(const QString& bundleID, const QString& modeID) {
    if (!mode(modeID))
        return;
    auto added = m_settings.read<QStringList>(addedAppsKey).value_or(QStringList());
    if (appendNew(added, bundleID))
        m_settings.set(addedAppsKey, added);
    edit(modeID, [&](Mode& mode) { return appendNew(mode.apps, bundleID); });
}

void ModeEngine::addSite(const QString& site, const QString& modeID) {
    edit(modeID, [&](Mode& mode) { return appendNew(mode.sites, site); });
}

void ModeEngine::moveApp(const QString& bundleID, const QString& neighbour, bool after, const QString& modeID) {
    edit(modeID, [&](Mode& mode) {
        if (bundleID == neighbour || !mode.apps.contains(neighbour) || !mode.apps.removeOne(bundleID))
            return false;
        mode.apps.insert(mode.apps.indexOf(neighbour) + (after ? 1 : 0), bundleID);
        return true;
    });
}

void ModeEngine::removeApp(const QString& bundleID, const QString& modeID) {
    edit(modeID, [&](Mode& mode) { return mode.apps.removeAll(bundleID) > 0; });
}

void ModeEngine::removeSite(const QString& site, const QString& modeID) {
    edit(modeID, [&](Mode& mode) { return mode.sites.removeAll(site) > 0; });
}

void ModeEngine::update(const Mode& mode) {
    edit(mode.id, [&](Mode& old) { return std::exchange(old, mode) != mode; });
}

void ModeEngine::moveModes(const QList<qsizetype>& positions, qsizetype target) {
    QList<Mode> before, moved, behind;
    for (qsizetype position = 0; position < m_modes.size(); ++position) {
        const Mode& mode = m_modes[position];
        if (positions.contains(position))
            moved.append(mode);
        else
            (position < target ? before : behind).append(mode);
    }
    m_modes = before + moved + behind;
    didEdit();
}

void ModeEngine::addMode(const Mode& mode) {
    if (mode.id.isEmpty() || this->mode(mode.id))
        return;
    m_modes.append(mode);
    didEdit();
}

void ModeEngine::deleteMode(const QString& id) {
    if (m_modes.size() < 2 || m_modes.removeIf([&](const Mode& mode) { return mode.id == id; }) == 0)
        return;
    didEdit();
}

void ModeEngine::replaceModes(const QList<Mode>& modes) {
    if (modes.isEmpty())
        return;
    m_modes = modes;
    didEdit();
}

void ModeEngine::didEdit() {
    m_index = ModeIndex(m_modes);
    m_store.save(m_modes);
    if (m_pending && !mode(m_pending->target.id))
        cancelPending();
    const Mode* current = mode(m_current.id);
    if (!current) {
        commit(Mode(m_modes.first()));
        return;
    }
    m_current = *current;
    m_currentPosition = current - m_modes.constData();
    Q_EMIT changed();
    onEdit();
}

} // namespace fendrel
