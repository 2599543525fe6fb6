#include "App/Capabilities.h"

#include "App/AppController.h"

#include <QFileInfo>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

using State = Capability::State;

Capability unless(const QString& id, const QString& problem) {
    return {.id = id, .state = problem.isEmpty() ? State::works : State::missing, .reason = problem};
}

Capability keyring(CapabilityFacts::Keyring keyring) {
    using enum CapabilityFacts::Keyring;
    switch (keyring) {
    case unknown:
        return {.id = u"keyring"_s, .state = State::unknown};
    case ready:
        return {.id = u"keyring"_s, .state = State::works};
    case missing:
        return unless(u"keyring"_s, Capabilities::tr("No keyring runs here."));
    case locked:
        return {.id = u"keyring"_s, .state = State::locked, .reason = Capabilities::tr("The keyring is locked.")};
    case failed:
        break;
    }
    return unless(u"keyring"_s, Capabilities::tr("The keyring gives no answer."));
}

Capability browser(const CapabilityFacts::Browser& browser) {
    Capability capability{.id = u"browser "_s + browser.home.name, .browser = browser.home};
    if (browser.isConnected) {
        capability.state = State::works;
    } else if (browser.isRunning) {
        capability.state = State::missing;
        capability.reason = Capabilities::tr("The companion extension isn't in it yet.");
    } else {
        capability.reason = Capabilities::tr("It isn't running now.");
    }
    return capability;
}

Capability pointer(const CapabilityFacts& facts) {
    if (!facts.canHoldPointer)
        return {.id = u"pointer"_s, .state = State::absent};
    return unless(u"pointer"_s,
                  facts.isPointerHeld ? QString() : Capabilities::tr("The pointer can't be held right now."));
}

Capability calendar(const CapabilityFacts& facts) {
    Capability capability{.id = u"calendar"_s};
    if (facts.calendar != CalendarStore::Source::none)
        capability.state = State::works;
    else if (facts.calendarAccess == CalendarStore::Access::denied)
        capability.state = State::missing;
    else if (facts.calendarAccess == CalendarStore::Access::missing && facts.remedies) // how to get one comes with it
        capability.state = State::absent;
    return capability;
}

QString taken(const QStringList& hotKeys) {
    if (hotKeys.isEmpty())
        return {};
    return Capabilities::tr("Taken by another program, or not on this keyboard: %1.").arg(hotKeys.join(u", "));
}

CapabilityFacts::Keyring stateOf(const SecretStore::Secret& secret) {
    using enum CapabilityFacts::Keyring;
    if (secret)
        return ready;
    switch (secret.error()) {
    case SecretStore::Problem::missing:
        return missing;
    case SecretStore::Problem::locked:
        return locked;
    case SecretStore::Problem::failed:
        break;
    }
    return failed;
}

} // namespace

QList<Capability> capabilities(const CapabilityFacts& facts) {
    QList<Capability> all{unless(u"titles"_s, facts.readsTitles
                                                  ? QString()
                                                  : Capabilities::tr("Fendrel may not read window titles yet.")),
                          unless(u"notifications"_s, facts.messagesProblem)};
    for (const auto& used : facts.browsers)
        all.append(browser(used));
    if (facts.browsers.isEmpty())
        all.append({.id = u"browser"_s, .state = State::absent});
    all.append({unless(u"model"_s, facts.modelProblem),
                keyring(facts.keyring),
                unless(u"hotKeys"_s, taken(facts.takenHotKeys)),
                pointer(facts),
                {.id = u"statusArea"_s, .state = facts.hasStatusArea ? State::works : State::absent},
                {.id = u"transparency"_s, .state = facts.hasTransparency ? State::works : State::missing},
                calendar(facts)});
    if (facts.remedies) {
        for (Capability& capability : all)
            capability.remedy = facts.remedies->value(capability.id);
    }
    return all;
}

Capabilities::Capabilities(AppController& controller) : m_controller(controller) {
    connect(&controller.titles(), &WindowTitles::changed, this, [this] {
        // Titles change all the time, and this seldom.
        if (m_controller.platform().accessibility->isTrusted() != m_readsTitles)
            gather();
    });
    connect(&controller.messages(), &HeldMessages::changed, this, &Capabilities::gather);
    connect(&controller.classifier(), &Classifier::changed, this, &Capabilities::gather);
    connect(&controller.bridge(), &BrowserBridge::changed, this, &Capabilities::gather);
    connect(&controller.replacement(), &DockReplacement::changed, this, &Capabilities::gather);
    connect(&controller, &AppController::surroundingsChanged, this, &Capabilities::gather);
    // A browser that is started for the first time has its folder from now on.
    connect(&controller.workspace(), &Workspace::runningChanged, this, &Capabilities::look);
    connect(&controller.hotKeys(), &HotKeyRegistry::changed, this, &Capabilities::gather);
    connect(&controller.widgets().calendar(), &WidgetFeed::changed, this, &Capabilities::gather);
}

void Capabilities::refresh() {
    if (!m_worker)
        m_worker = std::make_unique<Worker>(u"capabilities"_s);
    m_controller.hotKeys().retry();
    gather();
    // An item that nobody has: the answer tells of the keyring alone, and unlocks nothing.
    const SecretStore::Item nobodys{.service = u"org.fendrel.Fendrel"_s, .account = u"is there a keyring"_s};
    m_reading = m_controller.platform().secrets->read(nobodys, [this](const SecretStore::Secret& secret) {
        m_keyring = stateOf(secret);
        gather();
    });
    // A store is looked for by the first question. This one is for nothing.
    const WallTime now = m_controller.platform().clock->now();
    m_readingCalendar = m_controller.platform().calendar->events(now, now, [this](const auto&) { gather(); });
    look();
}

void Capabilities::look() {
    if (!m_worker)
        return;
    const Platform& platform = m_controller.platform();
    m_worker->post(u"look"_s, [this, browsers = platform.browsers, &remedies = *platform.remedies]() mutable {
        browsers.removeIf([](const BrowserHome& home) { return !QFileInfo(home.data).isDir(); });
        QMetaObject::invokeMethod(
            this,
            [this, browsers, found = remedies.find()] {
                m_usedBrowsers = browsers;
                m_remedies = found;
                gather();
            },
            Qt::QueuedConnection);
    });
}

void Capabilities::gather() {
    if (!m_worker)
        return; // nobody wants to know yet
    Platform& platform = m_controller.platform();
    const bool wantsPointerHeld = m_controller.replacement().isOn() && !m_controller.replacement().dockName().isEmpty();
    m_readsTitles = platform.accessibility->isTrusted();
    const auto all = capabilities({.readsTitles = m_readsTitles,
                                   .messagesProblem = m_controller.messages().unavailableReason(),
                                   .modelProblem = platform.languageModel->unavailableReason(),
                                   .keyring = m_keyring,
                                   .browsers = browsers(),
                                   .canHoldPointer = platform.pointerGuard->isAvailable(),
                                   .isPointerHeld = !wantsPointerHeld || platform.pointerGuard->isRunning(),
                                   .takenHotKeys = takenHotKeys(),
                                   .hasStatusArea = platform.statusArea->isAvailable(),
                                   .hasTransparency = platform.panels->hasTransparency(),
                                   .calendar = platform.calendar->source(),
                                   .calendarAccess = platform.calendar->access(CalendarStore::Kind::events),
                                   .remedies = m_remedies});
    if (all == m_all)
        return;
    m_all = all;
    Q_EMIT changed();
}

QStringList Capabilities::takenHotKeys() const {
    QStringList labels;
    for (const HotKey& hotKey : m_controller.hotKeys().refused())
        labels.append(modifierSymbols(hotKey.modifiers) + hotKey.key);
    return labels;
}

QList<CapabilityFacts::Browser> Capabilities::browsers() const {
    QList<CapabilityFacts::Browser> list;
    for (const BrowserHome& home : m_usedBrowsers) {
        // One browser may keep its profiles in either of two folders.
        if (std::ranges::any_of(list, [&](const auto& other) { return other.home.name == home.name; }))
            continue;
        const bool isConnected = std::ranges::any_of(m_controller.bridge().browsers(), [&](const auto& browser) {
            return browser.app && (home.bundleID.isEmpty() ? browser.app->name.startsWith(home.name)
                                                           : browser.app->bundleID == home.bundleID);
        });
        list.append({.home = home,
                     .isRunning = m_controller.workspace().running().contains(home.bundleID),
                     .isConnected = isConnected});
    }
    return list;
}

} // namespace fendrel
