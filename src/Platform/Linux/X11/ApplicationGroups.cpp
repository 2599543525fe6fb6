#include "Platform/Linux/X11/ApplicationGroups.h"

#include <unistd.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace fendrel {

ApplicationGroups::ApplicationGroups(std::shared_ptr<X11Windows> windows, std::shared_ptr<ApplicationCatalog> catalog,
                                     Clock& clock)
    : m_windows(std::move(windows)), m_catalog(std::move(catalog)), m_clock(clock), m_hidden(*m_windows) {
    connect(m_windows.get(), &X11Windows::listChanged, this, &ApplicationGroups::regroup);
    connect(m_windows.get(), &X11Windows::activeChanged, this, &ApplicationGroups::readFront);
    connect(m_windows.get(), &X11Windows::windowChanged, this, [this](const X11Window& now, const X11Window& before) {
        const auto identity = [](const X11Window& window) {
            return std::tie(window.className, window.instanceName, window.declaredEntry, window.pid);
        };
        const bool isRenamed = identity(now) != identity(before);
        if (isRenamed)
            m_origins.remove(now.id);
        const auto standing = [](const X11Window& window) {
            return std::tuple(window.isRegular(), window.wantsAttention(), window.transientFor);
        };
        if (isRenamed || standing(now) != standing(before))
            regroup();
    });
    regroup();
}

QList<RunningApp> ApplicationGroups::running() const {
    QList<RunningApp> apps;
    for (const Group& group : m_groups)
        apps.append(group.app);
    return apps;
}

std::optional<ApplicationGroups::Group> ApplicationGroups::find(qint64 pid) const {
    const auto found = m_groups.constFind(pid);
    if (found == m_groups.constEnd())
        return {};
    Group group = *found;
    std::ranges::sort(group.windows, {}, [&](xcb_window_t id) { return m_windows->byRecency().indexOf(id); });
    return group;
}

std::optional<qint64> ApplicationGroups::ownerOf(xcb_window_t window) const {
    const auto found = m_owners.constFind(window);
    return found == m_owners.constEnd() ? std::nullopt : std::optional(*found);
}

void ApplicationGroups::refreshNames() {
    m_origins.clear();
    regroup();
}

const X11Window& ApplicationGroups::leaderOf(const X11Window& window) const {
    constexpr int deepest = 8; // dialogs of dialogs; also ends a circle
    const X11Window* leader = &window;
    for (int depth = 0; depth < deepest; ++depth) {
        const auto* above = leader->transientFor == leader->id ? nullptr : m_windows->find(leader->transientFor);
        if (above == nullptr)
            break;
        leader = above;
    }
    return *leader;
}

const ApplicationGroups::Origin& ApplicationGroups::originOf(const X11Window& window) {
    if (const auto known = m_origins.constFind(window.id); known != m_origins.constEnd())
        return *known;
    const qint64 process = window.pid.value_or(-window.client);
    const WindowTraits traits{.declaredEntry = window.declaredEntry,
                              .instanceName = window.instanceName,
                              .className = window.className,
                              .process = factsOf(process)};
    return *m_origins.insert(
        window.id,
        {.process = process, .name = m_catalog->identify(traits), .isWebApplication = isWebApplication(traits)});
}

const ProcessFacts& ApplicationGroups::factsOf(qint64 process) {
    if (const auto known = m_facts.constFind(process); known != m_facts.constEnd())
        return *known;
    if (process > 0)
        return *m_facts.insert(process, ProcessFacts::read(process));
    // Nobody tells when a program on another machine was started. Its first window is the next best moment.
    const std::chrono::duration<double> sinceStart = m_clock.continuousNow().time_since_epoch();
    const double ticks = sinceStart.count() * static_cast<double>(sysconf(_SC_CLK_TCK));
    return *m_facts.insert(process, ProcessFacts{.startTime = static_cast<qint64>(ticks)});
}

void ApplicationGroups::forgetTheGone() {
    m_origins.removeIf([this](const auto& item) { return m_windows->find(item.key()) == nullptr; });
    // The system gives the number of a process that ended to another one.
    m_facts.removeIf([this](const auto& item) {
        return std::ranges::none_of(m_origins, [&](const Origin& origin) { return origin.process == item.key(); });
    });
}

void ApplicationGroups::assignNumbers() {
    const auto before = std::exchange(m_numbers, {});
    QList<std::pair<Application, xcb_window_t>> added;
    for (const X11Window& window : m_windows->all()) {
        const X11Window& leader = leaderOf(window);
        const Origin& origin = originOf(leader);
        const Application application(origin.process, origin.name.bundleID);
        if (const auto known = before.constFind(application); known != before.constEnd())
            m_numbers.insert(application, *known);
        else
            added.append({application, leader.id});
    }
    for (const auto& [application, window] : added) {
        if (m_numbers.contains(application))
            continue;
        const bool isTaken = m_numbers.values().contains(application.first);
        const bool isGuest = isTaken || m_origins[window].isWebApplication;
        m_numbers.insert(application, isGuest ? -qint64{window} : application.first);
    }
}

void ApplicationGroups::regroup() {
    const auto before = running();
    assignNumbers();
    m_owners.clear();
    m_groups.clear();
    for (const X11Window& window : m_windows->all()) {
        const Origin& origin = originOf(leaderOf(window));
        const qint64 number = m_numbers.value({origin.process, origin.name.bundleID});
        m_owners.insert(window.id, number);
        Group& group = m_groups[number];
        group.app.pid = number;
        group.app.bundleID = origin.name.bundleID;
        group.app.name = origin.name.shown;
        group.app.launchOrder = factsOf(origin.process).startTime;
        group.app.isRegular = group.app.isRegular || window.isRegular();
        group.app.wantsAttention = group.app.wantsAttention || window.wantsAttention();
        group.windows.append(window.id);
    }
    forgetTheGone();
    const auto now = running();
    if (!std::ranges::is_permutation(before, now))
        Q_EMIT groupsChanged();
    readFront();
}

void ApplicationGroups::readFront() {
    const xcb_window_t active = m_windows->active();
    std::optional<RunningApp> front;
    if (active != XCB_WINDOW_NONE) {
        const auto owner = ownerOf(active);
        if (!owner)
            return; // it just vanished, and another one is about to be active
        front = m_groups[*owner].app;
    }
    const auto before = std::exchange(m_front, front);
    const bool isSame = before.has_value() == front.has_value() &&
                        (!front || (before->pid == front->pid && before->bundleID == front->bundleID));
    if (!isSame)
        Q_EMIT frontChanged();
}

} // namespace fendrel
