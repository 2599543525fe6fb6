#include "UI/Settings/SettingsCatalog.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace fendrel::settingsCatalog {

namespace {

struct Row {
    const char* setting;
    const char* pane;
    const char* label;
    const char* help;
    const char* words;
};

constexpr auto rows = std::to_array<Row>({
    {"general", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "General"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Focus, messages, hot keys and what concerns all of Fendrel."), ""},
    {"strictness", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Strictness"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "How firmly Fendrel holds you to your mode during focus."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "gentle balanced strict drift wait block")},
    {"focusGlow", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Glow during focus"),
     QT_TRANSLATE_NOOP("SettingsCatalog",
                       "The edges of the screen shine in the mode's color while a focus session runs."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "light border shine")},
    {"tidyOnSwitch", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Tidy up when switching"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Hides the applications that don't belong to the new mode."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "hide windows clean change mode")},
    {"breakThrough", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Always let through"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Messages with one of these words show at once. Commas between them."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "notifications urgent words important")},
    {"passCritical", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Never hold critical messages"),
     QT_TRANSLATE_NOOP("SettingsCatalog",
                       "What the system itself calls critical, such as an empty battery, is left alone."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "notifications battery disk warning")},
    {"quietBanners", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Quiet the desktop's banners"),
     QT_TRANSLATE_NOOP("SettingsCatalog",
                       "While messages are held, the desktop shows none at all, those of the current mode neither."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "notifications do not disturb silence")},
    {"claudePings", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Pings from coding agents"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Kept for when Fendrel hears of coding agents."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "terminal assistant notifications")},
    {"modelServer", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Model server"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Address of a language model on this computer. No other is ever asked."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "ai language judge address port")},
    {"modelName", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Model name"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Which of its models to ask."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "ai language judge")},
    {"focusShortcut", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Start or stop focus"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Works in every application."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "keyboard shortcut hot key session")},
    {"dockShortcut", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Go to the dock"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Leads the keyboard to the dock and back."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "keyboard shortcut hot key")},
    {"modeModifiers", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Switch to a mode"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "These keys with 1 to 9 switch to the modes in their order."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "keyboard shortcut hot key modifiers number")},
    {"appModifiers", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Open an application"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "These keys with 1 to 9 open the dock's applications in their order."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "keyboard shortcut hot key modifiers number")},
    {"sounds", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Play sounds"),
     QT_TRANSLATE_NOOP(
         "SettingsCatalog",
         "A short sound when focus starts or stops, when the mode changes, and when a message is let through."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "audio cue noise mute")},
    {"startAtLogin", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Start at log-in"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Fendrel is there as soon as you are."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "login automatically launch autostart boot")},
    {"firstSteps", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Show the first steps again"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Adds modes and connects browsers. What you have stays as it is."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "welcome setup introduction")},
    {"crashReports", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Offer to send crash reports"),
     QT_TRANSLATE_NOOP("SettingsCatalog",
                       "Asks after a crash, and opens your mail app with the report for you to read first."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "error problem mail privacy")},

    {"learnedAnswers", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Learned answers"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "What Fendrel remembers of applications and sites, for you to correct."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "judgement verdict forget memory correction")},
    {"savedContexts", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "What was open in your modes"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Kept on this computer alone, and offered when you come back to a mode."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "restore context bring back remember forget applications pages documents")},
    {"export", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Export"),
     QT_TRANSLATE_NOOP("SettingsCatalog",
                       "Writes modes, settings and learned answers to a file, without keys of accounts."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "backup save file move computer")},
    {"import", "general", QT_TRANSLATE_NOOP("SettingsCatalog", "Import"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Replaces yours by those of such a file. You are asked first."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "backup restore load file")},

    {"dock", "dock", QT_TRANSLATE_NOOP("SettingsCatalog", "Dock"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Where the dock is, and what it does."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "panel bar taskbar")},
    {"replacesDock", "dock", QT_TRANSLATE_NOOP("SettingsCatalog", "Replace the system dock"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Hides the desktop's own dock while Fendrel runs."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "panel taskbar hide minimized trash")},
    {"dockPosition", "dock", QT_TRANSLATE_NOOP("SettingsCatalog", "Position"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "The edge of the screen that the dock is at."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "bottom left right side edge")},
    {"dockSize", "dock", QT_TRANSLATE_NOOP("SettingsCatalog", "Size"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "How large the icons are."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "small medium large big icons")},
    {"dockDisplay", "dock", QT_TRANSLATE_NOOP("SettingsCatalog", "Show on"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "The main display, the one you work on, or all of them."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "monitor screen display main active all")},
    {"autoHide", "dock", QT_TRANSLATE_NOOP("SettingsCatalog", "Hide automatically"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "The dock comes when the pointer reaches its edge."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "autohide show pointer")},
    {"magnify", "dock", QT_TRANSLATE_NOOP("SettingsCatalog", "Magnify icons"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "The icon under the pointer grows."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "magnification zoom larger")},
    {"clickToHide", "dock", QT_TRANSLATE_NOOP("SettingsCatalog", "Click to hide"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Clicking the application that is in front hides it."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "minimize application")},

    {"appearance", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Appearance"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "How the dock looks."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "color theme style")},
    {"lightAppearance", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Look of the dock"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Its color, opacity, corners, shadow and spacing."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "preset")},
    {"darkAppearance", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Look of the dock in dark mode"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "A look of its own for when the desktop is dark."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "night black theme")},
    {"matchSystem", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Match light and dark mode"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "The dock has a look of its own for each, and changes with the desktop."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "night theme automatic")},
    {"iconScale", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Icon size"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "On top of the size chosen for the dock."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "small medium large big icons")},
    {"magnification", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Magnification"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "How large the icon under the pointer grows."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "magnification zoom larger")},
    {"spacing", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Spacing"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "The room between icons."), ""},
    {"cornerRadius", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Corners"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "How round they are."), ""},
    {"background", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Color"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Text on it becomes light or dark to suit."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "background")},
    {"opacity", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Opacity"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "How little of what lies behind shines through."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "transparency")},
    {"blur", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Blur"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Softens what shines through."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "transparency")},
    {"shadow", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Shadow"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "How dark it is."), ""},
    {"border", "appearance", QT_TRANSLATE_NOOP("SettingsCatalog", "Border"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "How strong the thin line around the dock is."), ""},

    {"widgets", "widgets", QT_TRANSLATE_NOOP("SettingsCatalog", "Widgets"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "What the dock shows beside your applications."), ""},
    {"weatherPlace", "widgets", QT_TRANSLATE_NOOP("SettingsCatalog", "City"),
     QT_TRANSLATE_NOOP("SettingsCatalog",
                       "The weather widget shows its weather, in the temperature unit that your system uses."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "weather forecast temperature place town location")},
    {"tickerSymbols", "widgets", QT_TRANSLATE_NOOP("SettingsCatalog", "Symbols"),
     QT_TRANSLATE_NOOP("SettingsCatalog",
                       "The ticker widget follows up to 20 of them, such as AAPL, ^GSPC or BTC-USD. Commas or spaces "
                       "between them."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "ticker stocks shares index crypto finance quotes market")},

    {"calendarFolder", "widgets", QT_TRANSLATE_NOOP("SettingsCatalog", "Calendars"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Whose events and reminders the widgets show."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "calendar events reminders tasks folder ics iCalendar")},

    {"modes", "modes", QT_TRANSLATE_NOOP("SettingsCatalog", "Modes"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "Your modes, and the applications and web sites of each."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "applications apps sites name color symbol delay allowance template")},

    {"accounts", "accounts", QT_TRANSLATE_NOOP("SettingsCatalog", "Accounts"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "The services that widgets ask for you."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "key token password sign in keyring")},

    {"permissions", "permissions", QT_TRANSLATE_NOOP("SettingsCatalog", "Permissions"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "What works on this system, and how to get what is missing."),
     QT_TRANSLATE_NOOP("SettingsCatalog",
                       "browser extension notifications titles keyring calendar model server hot keys")},

    {"about", "about", QT_TRANSLATE_NOOP("SettingsCatalog", "About"),
     QT_TRANSLATE_NOOP("SettingsCatalog", "The version, the licenses, and where Fendrel keeps its files."),
     QT_TRANSLATE_NOOP("SettingsCatalog", "version license files diagnostics help privacy")},
});

QString translated(const char* text) {
    return *text == '\0' ? QString() : QCoreApplication::translate("SettingsCatalog", text);
}

SettingEntry entryOf(const Row& row) {
    return {.setting = QString::fromLatin1(row.setting),
            .pane = QString::fromLatin1(row.pane),
            .label = translated(row.label),
            .help = translated(row.help),
            .words = translated(row.words)};
}

} // namespace

QString dockHelp(const QString& systemDock, bool replaces) {
    if (!systemDock.isEmpty()) {
        return QCoreApplication::translate("SettingsCatalog",
                                           "Hides %1 while Fendrel runs, and gives it back as it was.")
            .arg(systemDock);
    }
    return replaces
               ? QCoreApplication::translate("SettingsCatalog", "No other dock or panel runs that Fendrel could hide. "
                                                                "Minimized windows and the Trash are in the dock.")
               : QCoreApplication::translate("SettingsCatalog",
                                             "No other dock or panel runs that Fendrel could hide. Minimized windows "
                                             "and the Trash come to the dock all the same.");
}

QList<SettingEntry> entries() {
    QList<SettingEntry> list;
    for (const Row& row : rows)
        list.append(entryOf(row));
    return list;
}

SettingEntry entry(const QString& setting) {
    const auto found =
        std::ranges::find_if(rows, [&](const Row& row) { return setting == QLatin1StringView(row.setting); });
    return found == rows.end() ? SettingEntry() : entryOf(*found);
}

QStringList settingsOf(const QString& pane) {
    QStringList names;
    for (const Row& row : rows) {
        if (pane == QLatin1StringView(row.pane))
            names.append(QString::fromLatin1(row.setting));
    }
    return names;
}

} // namespace fendrel::settingsCatalog
