#include "UI/Settings/AccountsController.h"

#include "App/AppController.h"
#include "Widgets/AccountTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

using Service = WidgetAccounts::Service;
using Problem = WidgetAccounts::Problem;

enum Role {
    nameRole = Qt::UserRole + 1,
    useRole,
    letterRole,
    tintRole,
    stateRole,
    isConnectedRole,
    isBusyRole,
    isTestingRole,
    newsRole,
    isRefusedRole
};

/// Apart from one another in the list, and nobody's own colours.
Tint tintOf(Service service) {
    static constexpr std::array tints{Tint::graphite, Tint::purple, Tint::amber, Tint::blue,
                                      Tint::green,    Tint::teal,   Tint::pink,  Tint::coral};
    return tints.at(static_cast<std::size_t>(service));
}

QString useOf(Service service) {
    switch (service) {
    case Service::github:
        return AccountsController::tr("Pull requests that wait for you, and the checks of your own.");
    case Service::stripe:
    case Service::lemonSqueezy:
    case Service::paddle:
    case Service::dodo:
        return AccountsController::tr("Your sales of today.");
    case Service::vercel:
        return AccountsController::tr("Your latest deploys.");
    case Service::linear:
        return AccountsController::tr("Issues that are assigned to you.");
    case Service::sentry:
        return AccountsController::tr("Unresolved errors of the last 24 hours.");
    }
    return {};
}

} // namespace

AccountsController::AccountsController(AppController& controller)
    : m_controller(controller), m_accounts(controller.accounts()) {
    connect(&m_accounts, &WidgetAccounts::changed, this, &AccountsController::accountsChanged);
}

void AccountsController::accountsChanged() {
    std::erase_if(m_tests, [this](const auto& entry) {
        return !m_accounts.connected().contains(entry.first) || m_accounts.isBusy(entry.first);
    });
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    Q_EMIT changed();
}

int AccountsController::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(WidgetAccounts::all().size());
}

QVariant AccountsController::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto& row = WidgetAccounts::all()[index.row()];
    const auto test = m_tests.find(row.service);
    switch (role) {
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case useRole:
        return useOf(row.service);
    case letterRole:
        return row.name.left(1);
    case tintRole:
        return color(tintOf(row.service));
    case stateRole:
        return stateText(row.service);
    case isConnectedRole:
        return m_accounts.connected().contains(row.service);
    case isBusyRole:
        return m_accounts.isBusy(row.service);
    case isTestingRole:
        return test != m_tests.end() && test->second.isRunning;
    case newsRole:
        return newsText(row.service);
    case isRefusedRole:
        return test != m_tests.end() && !test->second.problem.isEmpty();
    default:
        return {};
    }
}

QHash<int, QByteArray> AccountsController::roleNames() const {
    return {{nameRole, "name"},      {useRole, "use"},
            {letterRole, "letter"},  {tintRole, "tint"},
            {stateRole, "standing"}, {isConnectedRole, "isConnected"},
            {isBusyRole, "busy"},    {isTestingRole, "isTesting"},
            {newsRole, "news"},      {isRefusedRole, "isRefused"}};
}

/// How the last test went; empty while there was none, and while it runs.
QString AccountsController::newsText(Service service) const {
    const auto test = m_tests.find(service);
    if (test == m_tests.end() || test->second.isRunning)
        return {};
    return test->second.problem.isEmpty()
               ? tr("Connected, and %1 took the key").arg(WidgetAccounts::description(service).name)
               : test->second.problem;
}

QString AccountsController::stateText(Service service) const {
    if (m_accounts.isBusy(service))
        return tr("Asking the keyring…");
    if (const auto test = m_tests.find(service); test != m_tests.end() && test->second.isRunning)
        return tr("Asking %1…").arg(WidgetAccounts::description(service).name);
    if (const auto problem = m_accounts.problem(service)) {
        switch (*problem) {
        case Problem::missing:
            return tr("No keyring");
        case Problem::locked:
            return tr("Keyring locked");
        case Problem::failed:
            return tr("Keyring failed");
        }
    }
    if (m_accounts.connected().contains(service))
        return tr("Connected");
    return m_accounts.isRead() ? tr("Not connected") : QString();
}

std::optional<Problem> AccountsController::keyringProblem() const {
    for (const auto& row : WidgetAccounts::all()) {
        if (const auto problem = m_accounts.problem(row.service))
            return problem;
    }
    return {};
}

QString AccountsController::problem() const {
    const auto problem = keyringProblem();
    if (!problem)
        return {};
    switch (*problem) {
    case Problem::missing:
        return tr("Your desktop has no keyring");
    case Problem::locked:
        return tr("Your keyring is locked");
    case Problem::failed:
        return tr("Your keyring doesn't work");
    }
    return {};
}

QString AccountsController::remedy() const {
    const auto problem = keyringProblem();
    if (!problem)
        return {};
    switch (*problem) {
    case Problem::missing:
        return tr(
            "Keys are kept in the keyring and nowhere else. Install one, such as GNOME Keyring or KWallet, and log "
            "in again.");
    case Problem::locked:
        return tr("Unlock it, and Fendrel sees which accounts are connected.");
    case Problem::failed:
        return tr("Fendrel asked for your keys and got no answer. Nothing is lost: try again, or log in again.");
    }
    return {};
}

QString AccountsController::remedyAction() const {
    const auto problem = keyringProblem();
    if (!problem)
        return {};
    switch (*problem) {
    case Problem::missing:
        return tr("Show Permissions");
    case Problem::locked:
        return tr("Unlock…");
    case Problem::failed:
        return tr("Try Again");
    }
    return {};
}

void AccountsController::look() {
    m_accounts.readAgain();
}

void AccountsController::runRemedy() {
    const auto problem = keyringProblem();
    if (problem == Problem::locked)
        m_accounts.unlock();
    else if (problem == Problem::missing)
        m_controller.onShowSettings(u"permissions"_s); // it says how to get one
    else
        look();
}

void AccountsController::openKeyPage(int row) {
    m_controller.platform().shell->openAddress(WidgetAccounts::all()[row].keyAddress);
}

void AccountsController::save(int row, const QString& key) {
    m_accounts.save(key, WidgetAccounts::all()[row].service,
                    [self = QPointer(this), row](std::optional<Problem> problem) {
                        if (!self || problem)
                            return;
                        self->test(row);
                        Q_EMIT self->saved(row);
                    });
}

void AccountsController::test(int row) {
    const Service service = WidgetAccounts::all()[row].service;
    m_tests[service] = {}; // one at a time: a test before it is dropped
    const Platform& platform = m_controller.platform();
    m_tests[service].handle =
        testAccount(service, m_accounts, *platform.http, platform.clock->now(), [this, service](const auto& problem) {
            m_tests[service].isRunning = false;
            m_tests[service].problem = problem.value_or(QString());
            show(service);
        });
    show(service);
}

void AccountsController::show(Service service) {
    const QModelIndex place = index(static_cast<int>(service));
    Q_EMIT dataChanged(place, place);
}

void AccountsController::askToRemove(int row) {
    const auto& [service, name, keyAddress] = WidgetAccounts::all()[row];
    m_controller.onAlert(
        {.message = tr("Remove the key of %1?").arg(name),
         .informativeText = tr("Fendrel takes it out of your keyring. The key itself stays valid until "
                               "you delete it at %1.")
                                .arg(name),
         .buttons = {tr("Remove"), tr("Cancel")},
         .isGrave = true,
         .answered = [&accounts = m_accounts, service = service](int button) {
             if (button == 0)
                 accounts.remove(service);
         }});
}

QString AccountsController::clipboardText() const {
    return QGuiApplication::clipboard()->text().trimmed();
}

} // namespace fendrel
