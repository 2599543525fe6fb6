#include "UI/Setup/PermissionsModel.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/SyncRows.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QStandardPaths>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

enum Role {
    idRole = Qt::UserRole + 1,
    titleRole,
    helpRole,
    stateRole,
    stateLabelRole,
    reasonRole,
    remedyRole,
    iconRole,
    actionsRole
};

using State = Capability::State;

const QString keyringCommand = u"sudo apt install gnome-keyring"_s;

QString extensionsPage(BrowserHome::Family family) {
    return family == BrowserHome::Family::mozilla ? u"about:debugging#/runtime/this-firefox"_s
                                                  : u"chrome://extensions"_s;
}

bool hasApt() {
    static const bool found = !QStandardPaths::findExecutable(u"apt"_s).isEmpty();
    return found;
}

QString nameOf(State state) {
    return state == State::works     ? u"works"_s
           : state == State::missing ? u"missing"_s
           : state == State::locked  ? u"locked"_s
           : state == State::absent  ? u"absent"_s
                                     : u"unknown"_s;
}

} // namespace

PermissionsModel::PermissionsModel(AppController& controller, AppIcons& icons, Capabilities& capabilities, Shows shows)
    : m_controller(controller), m_icons(icons), m_capabilities(capabilities), m_shows(shows) {
    connect(&capabilities, &Capabilities::changed, this, &PermissionsModel::sync);
    sync();
}

int PermissionsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QHash<int, QByteArray> PermissionsModel::roleNames() const {
    return {{idRole, "rowID"},       {titleRole, "title"},   {helpRole, "help"},
            {stateRole, "standing"}, {reasonRole, "reason"}, {stateLabelRole, "stateLabel"},
            {remedyRole, "remedy"},  {iconRole, "icon"},     {actionsRole, "actions"}};
}

QVariant PermissionsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case idRole:
        return row.id;
    case Qt::DisplayRole:
    case titleRole:
        return row.title;
    case helpRole:
        return row.help;
    case stateRole:
        return row.state;
    case stateLabelRole:
        return row.stateLabel;
    case reasonRole:
        return row.reason;
    case remedyRole:
        return row.remedy;
    case iconRole:
        return row.icon;
    case actionsRole: {
        QVariantList actions;
        for (const QString& action : row.actions)
            actions.append(QVariantMap{{u"id"_s, action}, {u"label"_s, actionLabel(action)}});
        return actions;
    }
    default:
        return {};
    }
}

bool PermissionsModel::hasConnection() const {
    return std::ranges::any_of(m_capabilities.all(), [](const Capability& capability) {
        return capability.browser && capability.state == State::works;
    });
}

QString PermissionsModel::actionLabel(const QString& action) {
    if (action == "allow"_L1)
        return tr("Allow…");
    if (action == "unlock"_L1)
        return tr("Unlock…");
    if (action == "address"_L1)
        return tr("Copy Address");
    if (action == "folder"_L1)
        return tr("Show Folder");
    if (action == "open"_L1)
        return tr("Open Browser");
    if (action == "command"_L1)
        return tr("Copy Command");
    return tr("Open Settings");
}

void PermissionsModel::act(const QString& row, const QString& action) {
    const auto& all = m_capabilities.all();
    const auto found = std::ranges::find(all, row, &Capability::id);
    if (found == all.end())
        return;
    Platform& platform = m_controller.platform();
    if (action == "allow"_L1) {
        m_controller.titles().requestPermission();
    } else if (action == "unlock"_L1) {
        m_unlocking = platform.secrets->unlock([this](const auto&) { refresh(); });
    } else if (action == "address"_L1 && found->browser) {
        QGuiApplication::clipboard()->setText(extensionsPage(found->browser->family));
    } else if (action == "folder"_L1) {
        platform.shell->reveal({platform.extension + u"/manifest.json"_s});
    } else if (action == "open"_L1 && found->browser) {
        m_controller.workspace().open(found->browser->bundleID);
    } else if (action == "command"_L1) {
        QGuiApplication::clipboard()->setText(keyringCommand);
    } else if (action == "settings"_L1) {
        m_controller.onShowSettings(row == "model"_L1     ? u"modelServer"_s
                                    : row == "pointer"_L1 ? u"replacesDock"_s
                                                          : u"focusShortcut"_s);
    }
}

void PermissionsModel::sync() {
    QList<Row> wanted;
    for (const Capability& capability : m_capabilities.all()) {
        const bool isBrowser = capability.id.startsWith("browser"_L1);
        const bool isShown = m_shows == Shows::all || (m_shows == Shows::browsers && capability.browser) ||
                             (m_shows == Shows::problems && !isBrowser &&
                              (capability.state == State::missing || capability.state == State::locked));
        if (isShown)
            wanted.append(row(capability));
    }
    RowSync<PermissionsModel, Row>::sync(*this, m_rows, wanted);
    Q_EMIT countChanged();
}

PermissionsModel::Row PermissionsModel::row(const Capability& capability) {
    Row row{.id = capability.id, .state = nameOf(capability.state), .reason = capability.reason};
    row.stateLabel = capability.state == State::works     ? tr("Works")
                     : capability.state == State::missing ? tr("Missing")
                     : capability.state == State::locked  ? tr("Locked")
                     : capability.state == State::absent  ? tr("Not here")
                                                          : tr("Checking…");
    if (capability.browser)
        describeBrowser(row, capability);
    else
        describe(row, capability);
    return row;
}

void PermissionsModel::describeBrowser(Row& row, const Capability& capability) {
    const BrowserHome& browser = *capability.browser;
    const bool isChromium = browser.family == BrowserHome::Family::chromium;
    row.title = browser.name;
    row.icon = browser.bundleID.isEmpty() ? QString() : m_icons.source(browser.bundleID);
    row.help = tr("Tells which site is in front, and veils pages that belong to another mode.");
    if (capability.state == State::works) {
        row.stateLabel = tr("Connected");
        return;
    }
    row.stateLabel = capability.state == State::missing ? tr("Not connected") : tr("Not running");
    row.remedy = isChromium
                     ? tr("Go to %1, turn on Developer mode, choose “Load unpacked”, and pick the folder “extension”.")
                     : tr("Go to %1, choose “Load Temporary Add-on”, and pick manifest.json in the folder “extension”. "
                          "It stays until the browser ends.");
    row.remedy = row.remedy.arg(extensionsPage(browser.family));
    row.actions = {u"address"_s, u"folder"_s};
    if (capability.state == State::unknown && m_controller.workspace().url(browser.bundleID))
        row.actions.prepend(u"open"_s);
}

void PermissionsModel::describe(Row& row, const Capability& capability) const {
    const bool works = capability.state == State::works;
    const bool isMissing = capability.state == State::missing;
    const auto missing = [&](const QString& remedy, const QStringList& actions = {}) {
        if (isMissing) {
            row.remedy = remedy;
            row.actions = actions;
        }
    };
    if (row.id == "titles"_L1) {
        row.title = tr("Window titles");
        row.help = tr("Tell which document or page is in front.");
        missing(tr("Allow it in the system's settings."), {u"allow"_s});
    } else if (row.id == "notifications"_L1) {
        row.title = tr("Notifications");
        row.help = tr("Messages for other modes wait until you get there.");
        missing(tr("Log out and in again. If that doesn't help, the session bus has to allow monitoring."));
    } else if (row.id == "browser"_L1) {
        row.title = tr("Browser");
        row.help = tr("Tells which site is in front, and veils pages that belong to another mode.");
        row.reason = tr("No browser that Fendrel can talk to was used here yet.");
        row.remedy = tr("Start one such as Firefox or Chromium once.");
    } else if (row.id == "model"_L1) {
        row.title = tr("Language model");
        row.help =
            tr("Judges what the modes' lists don't name, and which messages are urgent. It runs on this computer.");
        row.stateLabel = works ? tr("Connected") : tr("None found");
        missing(tr("Start a model server such as llama.cpp or Ollama. Everything else works without one."),
                {u"settings"_s});
    } else if (row.id == "keyring"_L1) {
        row.title = tr("Keyring");
        row.help = tr("Keeps the keys of your accounts.");
        missing(tr("Install a keyring, such as GNOME Keyring or KWallet, and log in again."),
                isMissing && hasApt() ? QStringList{u"command"_s} : QStringList());
        if (capability.state == State::locked)
            row.actions = {u"unlock"_s};
    } else if (row.id == "hotKeys"_L1) {
        row.title = tr("Hot keys");
        row.help = tr("Lead to modes, focus and the dock from anywhere.");
        if (isMissing)
            row.stateLabel = tr("Some don't work");
        missing(tr("Choose another combination, or change it in the other program."), {u"settings"_s});
    } else if (row.id == "pointer"_L1) {
        row.title = tr("Edges of the screen");
        row.help = tr("The pointer stays off the edge where a replaced dock waits.");
        missing(tr("Turn replacing the dock off and on again."), {u"settings"_s});
        if (capability.state == State::absent)
            row.reason = tr("This system can't hold the pointer.");
    } else if (row.id == "statusArea"_L1) {
        row.title = tr("Status icons");
        row.help = tr("Fendrel's icon beside the clock.");
        if (!works)
            row.reason = tr("This desktop shows no status icons. The dock has the same menu.");
    } else if (row.id == "transparency"_L1) {
        row.title = tr("Transparency");
        row.help = tr("The dock has round corners and a soft shadow.");
        row.stateLabel = works ? row.stateLabel : tr("Off");
        missing(tr("Turn on compositing in the desktop's settings, or start a compositor such as picom."));
    } else {
        row.title = tr("Calendar");
        row.help = tr("For widgets that show what comes next.");
        row.reason = tr("Fendrel can't read calendars yet. That comes with the widgets.");
    }
}

} // namespace fendrel
