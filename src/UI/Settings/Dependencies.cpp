#include "UI/Settings/Dependencies.h"

#include <QCoreApplication>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(fendrel::Dependencies)
};
} // namespace

QList<Dependency> dependencies() {
    return {
        {u"Adwaita icons"_s,
         u"LGPL-3.0 or CC-BY-SA-3.0"_s,
         Texts::tr("icons for programs that have none"),
         {u"adwaita-icon-theme"_s}},
        {u"curl"_s,
         u"curl"_s,
         Texts::tr("questions to a language model on this computer"),
         {u"libcurl4"_s, u"libcurl4-openssl-dev"_s}},
        {u"D-Bus"_s, u"AFL-2.1 or GPL-2.0-or-later"_s, Texts::tr("talks to the desktop"), {u"dbus"_s}},
        {u"file"_s, u"BSD-2-Clause"_s, Texts::tr("tells folders from files"), {u"file"_s}},
        {u"freedesktop.org icons"_s, u"GPL-2.0"_s, Texts::tr("the folders of icon themes"), {u"hicolor-icon-theme"_s}},
        {u"GLib"_s,
         u"LGPL-2.1-or-later"_s,
         Texts::tr("the desktop's own settings"),
         {u"libglib2.0-0"_s, u"libglib2.0-dev"_s}},
        {u"ICU"_s, u"Unicode-3.0"_s, Texts::tr("amounts of money"), {u"libicu-dev"_s}},
        {u"Inter"_s, u"OFL-1.1"_s, Texts::tr("the typeface"), {u"fonts-inter"_s}},
        {u"libcanberra"_s,
         u"LGPL-2.1-or-later"_s,
         Texts::tr("plays sounds"),
         {u"libcanberra0"_s, u"libcanberra-pulse"_s, u"libcanberra-dev"_s}},
        {u"libical"_s, u"MPL-2.0 or LGPL-2.1"_s, Texts::tr("reads calendars"), {u"libical3"_s, u"libical-dev"_s}},
        {u"libsecret"_s, u"LGPL-2.1-or-later"_s, Texts::tr("the keyring"), {u"libsecret-1-0"_s, u"libsecret-1-dev"_s}},
        {u"Lucide"_s, u"ISC"_s, Texts::tr("most of the symbols"), {}},
        {u"Noto Color Emoji"_s, u"OFL-1.1"_s, Texts::tr("emoji in messages"), {u"fonts-noto-color-emoji"_s}},
        {u"Qt"_s,
         u"LGPL-3.0"_s,
         Texts::tr("windows, views, and nearly everything else"),
         {u"libqt6core6"_s, u"qt6-base-dev"_s, u"qt6-declarative-dev"_s, u"qt6-svg-dev"_s, u"libqt6svg6"_s,
          u"qml6-module-qtquick"_s, u"qml6-module-qtquick-shapes"_s, u"qml6-module-qtqml"_s,
          u"qml6-module-qtqml-models"_s, u"qml6-module-qtqml-workerscript"_s, u"qml6-module-qt-labs-platform"_s}},
        {u"simdjson"_s,
         u"Apache-2.0"_s,
         Texts::tr("reads the logs of your coding agent"),
         {u"libsimdjson14"_s, u"libsimdjson-dev"_s}},
        {u"SQLite"_s,
         Texts::tr("public domain"),
         Texts::tr("keeps your modes"),
         {u"libsqlite3-0"_s, u"libsqlite3-dev"_s}},
        {u"systemd"_s,
         u"LGPL-2.1-or-later"_s,
         Texts::tr("hears which notifications are shown"),
         {u"libsystemd0"_s, u"libsystemd-dev"_s}},
        {u"X11 utilities"_s, u"MIT"_s, Texts::tr("tell whether there is a display"), {u"x11-utils"_s}},
        {u"XCB"_s,
         u"MIT"_s,
         Texts::tr("windows of other programs, and the displays"),
         {u"libxcb1"_s, u"libxcb1-dev"_s, u"libxcb-composite0-dev"_s, u"libxcb-damage0-dev"_s, u"libxcb-randr0-dev"_s,
          u"libxcb-render0-dev"_s, u"libxcb-render-util0-dev"_s, u"libxcb-res0-dev"_s, u"libxcb-screensaver0-dev"_s,
          u"libxcb-shape0-dev"_s, u"libxcb-xfixes0-dev"_s, u"libxcb-xinput-dev"_s}},
        {u"xdg-utils"_s, u"MIT"_s, Texts::tr("opens addresses and mails"), {u"xdg-utils"_s}},
        {u"xkbcommon"_s, u"MIT"_s, Texts::tr("which key a hot key is"), {u"libxkbcommon0"_s, u"libxkbcommon-dev"_s}},
    };
}

} // namespace fendrel
