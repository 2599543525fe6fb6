#include "UI/Setup/PermissionsModel.h"

#include "App/AppController.h"
#include "Base/EnumNames.h"
#include "UI/Images/AppIcons.h"
#include "UI/SyncRows.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHash>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

using State = Capability::State;

QString extensionsPage(BrowserHome::Family family) {
    return family == BrowserHome::Family::mozilla ? u"about:debugging#/runtime/this-firefox"_s
                                                  : u"chrome://extensions"_s;
}

/// The setting or the pane that has to do with it; empty: none has.
QString settingOf(const QString& row) {
    static const QHash<QString, QString> settings{
        {u"titles"_s, u"strictness"_s}, {u"notifications"_s, u"quietBanners"_s}, {u"model"_s, u"modelServer"_s},
        {u"keyring"_s, u"accounts"_s},  {u"hotKeys"_s, u"focusShortcut"_s},      {u"pointer"_s, u"replacesDock"_s},
        {u"calendar"_s, u"widgets"_s},  {u"transparency"_s, u"appearance"_s}};
    return settings.value(row);
}

/// What is missing sends its user only to where that can be mended.
bool leadsToSetting(const Capability& capability) {
    static const QStringList mending{u"model"_s, u"hotKeys"_s, u"pointer"_s};
    return !settingOf(capability.id).isEmpty() &&
           (capability.state == State::works || capability.id == "calendar"_L1 ||
            (capability.state == State::missing && mending.contains(capability.id)));
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

bool PermissionsModel::hasConnection() const {
    return std::ranges::any_of(m_capabilities.all(), [](const Capability& capability) {
        return capability.browser && capability.state == State::works;
    });
}

QVariantList PermissionsModel::labelled(const Row& row) {
    const auto label = [&](const QString& action) {
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
        if (action == "page"_L1)
            return row.id == "calendar"_L1 ? tr("Open Calendar") : tr("Desktop Settings");
        return tr("Open Settings");
    };
    QVariantList list;
    for (const QString& action : row.actions)
        list.append(QVariantMap{{u"id"_s, action}, {u"label"_s, label(action)}});
    return list;
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
    } else if (action == "open"_L1) {
        m_controller.workspace().open(found->browser ? found->browser->bundleID : installedBrowser());
    } else if (action == "command"_L1) {
        QGuiApplication::clipboard()->setText(found->remedy.command);
    } else if (action == "page"_L1) {
        platform.remedies->open(found->remedy.page);
    } else if (action == "settings"_L1) {
        m_controller.onShowSettings(settingOf(row));
    }
}

QString PermissionsModel::installedBrowser() const {
    for (const BrowserHome& browser : m_controller.platform().browsers) {
        if (!browser.bundleID.isEmpty() && m_controller.workspace().url(browser.bundleID))
            return browser.bundleID;
    }
    return {};
}

void PermissionsModel::sync() {
    QList<Row> wanted;
    for (const Capability& capability : m_capabilities.all()) {
        const bool isBrowser = capability.id.startsWith("browser"_L1);
        const bool isShown = m_shows == Shows::all || (m_shows == Shows::browsers && isBrowser) ||
                             (m_shows == Shows::problems && !isBrowser &&
                              (capability.state == State::missing || capability.state == State::locked));
        if (isShown)
            wanted.append(row(capability));
    }
    RowSync<PermissionsModel, Row>::sync(*this, m_rows, wanted);
    Q_EMIT countChanged();
}

PermissionsModel::Row PermissionsModel::row(const Capability& capability) {
    Row row{.id = capability.id, .state = enumName(capability.state), .reason = capability.reason};
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
    const bool isRunning = capability.state == State::missing || capability.state == State::works;
    if (m_controller.workspace().url(browser.bundleID) && capability.state != State::missing)
        row.actions.append(u"open"_s);
    if (capability.state == State::works) {
        row.stateLabel = tr("Connected");
        return;
    }
    row.stateLabel = isRunning ? tr("Not connected") : tr("Not running");
    QString byHand =
        isChromium ? tr("Go to %1, turn on Developer mode, choose “Load unpacked”, and pick the folder “extension”.")
                   : tr("Go to %1, choose “Load Temporary Add-on”, and pick manifest.json in the folder “extension”. "
                        "It stays until the browser ends.");
    byHand = byHand.arg(extensionsPage(browser.family));
    if (capability.remedy.isInstalled) {
        if (!isRunning) {
            row.reason.clear();
            row.remedy = tr("The extension is installed. Start %1.").arg(browser.name);
            return;
        }
        row.reason = tr("The extension is installed. Close %1 and start it again.").arg(browser.name);
        row.remedy = tr("If that doesn't help, there is another way.") + u' ' + byHand;
    } else {
        row.remedy = byHand;
    }
    row.actions += {u"address"_s, u"folder"_s};
    if (!capability.remedy.command.isEmpty())
        offerCommand(row, capability, tr("It can also stay for good, with an administrator's password."));
}

void PermissionsModel::offerCommand(Row& row, const Capability& capability, const QString& purpose) {
    row.command = capability.remedy.command;
    row.commandHelp = (purpose + u' ' + tr("Copy the command and run it in a terminal.")).trimmed();
    row.actions.append(u"command"_s);
}

void PermissionsModel::describe(Row& row, const Capability& capability) const {
    const bool works = capability.state == State::works;
    const bool isMissing = capability.state == State::missing;
    const bool isAbsent = capability.state == State::absent;
    // A calendar program that keeps its calendars to itself does not help; those that share them show them, too.
    const bool wantsPage = row.id == "calendar"_L1 ? works : isMissing || isAbsent;
    const bool hasPage = !capability.remedy.page.isEmpty() && wantsPage;
    const bool hasCommand = !hasPage && (isMissing || isAbsent) && !capability.remedy.command.isEmpty();
    if (row.id == "titles"_L1) {
        row.title = tr("Window titles");
        row.help = tr("Tell which document or page is in front.");
        if (isMissing) {
            row.remedy = tr("Allow it in the system's settings.");
            row.actions.append(u"allow"_s);
        }
    } else if (row.id == "notifications"_L1) {
        row.title = tr("Notifications");
        row.help = tr("Messages for other modes wait until you get there.");
        if (isMissing)
            row.remedy = tr("Log out and in again. If that doesn't help, the session bus has to allow monitoring.");
    } else if (row.id == "browser"_L1) {
        row.title = tr("Browser");
        row.help = tr("Tells which site is in front, and veils pages that belong to another mode.");
        row.reason = tr("No browser that Fendrel can talk to was used here yet.");
        if (!installedBrowser().isEmpty()) {
            row.remedy = tr("Start one such as Firefox or Chromium once.");
            row.actions.append(u"open"_s);
            return;
        }
        row.remedy = tr("Install one such as Firefox or Chromium, and start it once.");
    } else if (row.id == "model"_L1) {
        row.title = tr("Language model");
        row.help =
            tr("Judges what the modes' lists don't name, and which messages are urgent. It runs on this computer.");
        row.stateLabel = works ? tr("Connected") : tr("None found");
        if (isMissing)
            row.remedy = tr("Start a model server such as llama.cpp or Ollama. Everything else works without one.");
    } else if (row.id == "keyring"_L1) {
        row.title = tr("Keyring");
        row.help = tr("Keeps the keys of your accounts.");
        if (isMissing)
            row.remedy = tr("Install a keyring, such as GNOME Keyring or KWallet, and log in again.");
        else if (capability.state == State::locked)
            row.actions.append(u"unlock"_s);
    } else if (row.id == "hotKeys"_L1) {
        row.title = tr("Hot keys");
        row.help = tr("Lead to modes, focus and the dock from anywhere.");
        if (isMissing) {
            row.stateLabel = tr("Some don't work");
            row.remedy = tr("Choose another combination, or change it in the other program.");
        }
    } else if (row.id == "pointer"_L1) {
        row.title = tr("Edges of the screen");
        row.help = tr("The pointer stays off the edge where a replaced dock waits.");
        if (isMissing)
            row.remedy = tr("Turn replacing the dock off and on again.");
        if (isAbsent)
            row.reason = tr("This system can't hold the pointer.");
    } else if (row.id == "statusArea"_L1) {
        row.title = tr("Status icons");
        row.help = tr("Fendrel's icon beside the clock.");
        if (!works)
            row.reason = tr("This desktop shows no status icons. The dock has the same menu.");
        if (!works && hasPage)
            row.remedy = tr("Add a tray for them to the panel.");
        else if (hasCommand)
            row.remedy = tr("The command installs what shows them.");
    } else if (row.id == "transparency"_L1) {
        row.title = tr("Transparency");
        row.help = tr("The dock has round corners and a soft shadow.");
        row.stateLabel = works ? row.stateLabel : tr("Off");
        if (isMissing)
            row.remedy = hasPage
                             ? tr("Turn on compositing in the desktop's settings.")
                             : tr("Turn on compositing in your window manager, or start a compositor such as picom.");
    } else {
        row.title = tr("Calendar");
        row.help = tr("For widgets that show what comes next.");
        const CalendarStore& store = *m_controller.platform().calendar;
        if (store.source() == CalendarStore::Source::system)
            row.reason = tr("From the calendar of your desktop.");
        else if (works)
            row.reason = tr("From iCalendar files in %1.").arg(store.folders().join(u", "));
        else if (isMissing)
            row.reason = tr("Fendrel may not read your calendars.");
        else if (isAbsent)
            row.reason = tr("There is no calendar that Fendrel can read: neither your desktop's nor a folder of "
                            "iCalendar files.");
        row.stateLabel = isAbsent ? tr("None found") : row.stateLabel;
        if (hasCommand)
            row.remedy = tr("The command installs a calendar program that shares its calendars.");
    }
    if (hasPage)
        row.actions.append(u"page"_s);
    else if (hasCommand)
        offerCommand(row, capability, {});
    if (leadsToSetting(capability))
        row.actions.append(u"settings"_s);
}

} // namespace fendrel
