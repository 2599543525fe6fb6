#include "Platform/Linux/Applications/ApplicationIdentity.h"
#include "Platform/Linux/Applications/ExecLine.h"
#include "Platform/Linux/Applications/WindowIdentity.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

/// From a desktop entry to its program, and from a window to its desktop entry.
class ApplicationIdentityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fillsInFieldCodes_data() {
        const Table<QStringList> row("arguments"); // none: the line is broken
        row("app", {u"app"_s});
        row("app %f %u %F %U --new", {u"app"_s, u"--new"_s});
        row("app --name=%c %k 100%% %i",
            {u"app"_s, u"--name=Two Words"_s, u"/a.desktop"_s, u"100%"_s, u"--icon"_s, u"pen"_s});
        row("app %d%m --file=%f 5%", {u"app"_s, u"--file="_s, u"5%"_s});
        row(R"("/opt/My App/app" "%f %%" "")", {u"/opt/My App/app"_s, u"%f %"_s, u""_s});
        // sh -c "echo \"\$HOME\" \\" a\ b
        row("sh -c \"echo \\\"\\$HOME\\\" \\\\\" a\\ b", {u"sh"_s, u"-c"_s, u"echo \"$HOME\" \\"_s, u"a b"_s});
        for (const char* broken : {"", "  ", "app \"open", "%f", "\"\" app"})
            row(broken, {});
    }

    void fillsInFieldCodes() {
        const DesktopEntry entry{.path = u"/a.desktop"_s,
                                 .name = u"Two Words"_s,
                                 .exec = QString::fromLatin1(QTest::currentDataTag()),
                                 .icon = u"pen"_s};
        QTEST(execArguments(entry).value_or(QStringList()), "arguments");
    }

    void opensFiles_data() {
        const Table<QString, QList<QStringList>> row("mimeType", "lines");
        const QString a = u"/a b"_s;
        const QString b = u"/%f"_s;
        row("app %f -- x", {}, {{u"app"_s, a, u"--"_s, u"x"_s}, {u"app"_s, b, u"--"_s, u"x"_s}});
        row("app --file=%f", {}, {{u"app"_s, u"--file="_s + a}, {u"app"_s, u"--file="_s + b}});
        row("app %F", {}, {{u"app"_s, a, b}});
        row("app %u", {},
            {{u"app"_s, u"file:///a%20b"_s}, {u"app"_s, u"https://a.example/"_s}, {u"app"_s, u"file:///%25f"_s}});
        row("app %% %U", {}, {{u"app"_s, u"%"_s, u"file:///a%20b"_s, u"https://a.example/"_s, u"file:///%25f"_s}});
        row("app -x", u"text/plain"_s, {{u"app"_s, u"-x"_s, a}, {u"app"_s, u"-x"_s, b}});
        row("app", {}, {}); // a terminal would run the file
        row("app %F \"", {}, {});
    }

    void opensFiles() {
        QFETCH(QString, mimeType);
        const DesktopEntry entry{.exec = QString::fromLatin1(QTest::currentDataTag()),
                                 .mimeTypes = mimeType.isEmpty() ? QStringList() : QStringList(mimeType)};
        const QList<QUrl> files{QUrl::fromLocalFile(u"/a b"_s), QUrl(u"https://a.example/"_s), QUrl(u"--help"_s),
                                QUrl::fromLocalFile(u"/%f"_s)};
        QTEST(execLines(entry, files), "lines");
    }

    void tellsBrowsers_data() {
        const Table<DesktopEntry, bool> row("entry", "isOne");
        row("by an address", {.mimeTypes = {u"x-scheme-handler/http"_s}}, true);
        row("by its kind", {.exec = u"app %f"_s, .categories = {u"Network"_s, u"WebBrowser"_s}}, true);
        row("by its pages", {.exec = u"app %u"_s, .mimeTypes = {u"text/html"_s}}, true);
        row("pages on this computer alone", {.exec = u"app %F"_s, .mimeTypes = {u"text/html"_s}}, false);
        row("an editor", {.exec = u"app %U"_s, .mimeTypes = {u"text/plain"_s, u"text/html"_s}}, false);
    }

    void tellsBrowsers() {
        QFETCH(const DesktopEntry, entry);
        QTEST(isBrowser(entry), "isOne");
    }

    void namesTheProgramThatAPersonWould() {
        const auto name = [](const char* exec) { return programName(QString::fromLatin1(exec)); };
        QCOMPARE(name("/usr/bin/app %U"), u"app"_s);
        QCOMPARE(name("env A=1 B=2 app --x"), u"app"_s);
        QCOMPARE(name("env -i python3 -u /opt/tool.py"), u"tool.py"_s);
        QCOMPARE(name("bash"), u"bash"_s);
    }

    void givesAProductOneIdentifier() {
        const auto identity = ApplicationIdentity::builtIn();
        for (const char* id : {"firefox", "firefox-esr", "org.mozilla.firefox", "firefox_firefox", "FIREFOX"})
            QCOMPARE(identity.ofEntry({.id = QString::fromLatin1(id)}), u"org.mozilla.firefox"_s);
        QCOMPARE(identity.ofEntry({.id = u"my-browser"_s, .startupClass = u"Firefox"_s}), u"org.mozilla.firefox"_s);
        QCOMPARE(identity.ofEntry({.id = u"org.example.Other"_s, .startupClass = u"other"_s}), u"org.example.Other"_s);
        QCOMPARE(identity.ofClass(u"slack"_s), u"com.tinyspeck.slackmacgap"_s);
        QCOMPARE(identity.ofClass(u"other"_s), std::nullopt);
        QVERIFY(identity.rank({.id = u"firefox"_s}) < identity.rank({.id = u"firefox_firefox"_s}));
    }

    void findsTheEntryOfAWindow_data() {
        const Table<WindowTraits, QString> row("window", "expected");
        const auto process = [](const char* executable) {
            return ProcessFacts{.executable = QString::fromLatin1(executable)};
        };
        row("names its entry itself", {.declaredEntry = u"org.example.Editor"_s, .className = u"Viewer"_s},
            u"org.example.Editor"_s);
        row("its class is an entry's", {.className = u"Viewer"_s}, u"viewer"_s);
        row("the class of two: the one that runs", {.className = u"shared"_s, .process = process("/opt/editor-beta")},
            u"editor-beta"_s);
        row("the class of two, and neither runs: the offered one", {.className = u"shared"_s}, u"editor-stable"_s);
        row("its class is an entry's id, in another case", {.className = u"EDITOR-BETA"_s}, u"editor-beta"_s);
        row("its class is the last part of one", {.className = u"editor"_s}, u"org.example.Editor"_s);
        row("by the instance, then", {.instanceName = u"viewer-window"_s, .className = u"unknown"_s}, u"viewer"_s);
        row("a sandbox's window that is named",
            {.className = u"Helper"_s, .process = {.flatpakID = u"org.example.Suite"_s}},
            u"org.example.Suite.Helper"_s);
        row("a sandbox's window that is not", {.className = u"?"_s, .process = {.flatpakID = u"org.example.Suite"_s}},
            u"org.example.Suite"_s);
        row("a snap's", {.className = u"Viewer"_s, .process = {.snapName = u"suite"_s, .snapApp = u"draw"_s}},
            u"suite_draw"_s);
        row("started from an entry that names no class",
            {.className = u"Viewer"_s, .process = {.launchedEntry = u"/tool.desktop"_s}}, u"tool"_s);
        row("started from one that shows other windows",
            {.className = u"Helper"_s, .process = {.launchedEntry = u"/viewer.desktop"_s}},
            u"org.example.Suite.Helper"_s);
        row("unknown", {.className = u"unknown"_s}, u"-"_s);
    }

    void findsTheEntryOfAWindow() {
        QFETCH(const WindowTraits, window);
        const auto entry = [](const char* id, const char* exec, const char* startupClass, bool isOffered = true) {
            const QString name = QString::fromLatin1(id);
            return DesktopEntry{.id = name,
                                .path = u'/' + name + u".desktop"_s,
                                .exec = QString::fromLatin1(exec),
                                .startupClass = QString::fromLatin1(startupClass),
                                .flatpakID = name.startsWith(u"org.example.Suite") ? u"org.example.Suite"_s : QString(),
                                .snapName = name.startsWith(u"suite_") ? u"suite"_s : QString(),
                                .isOffered = isOffered};
        };
        const EntryIndex index(
            {entry("editor-beta", "/opt/editor-beta %F", "shared", false),
             entry("editor-stable", "editor-stable", "shared"), entry("org.example.Editor", "edit", ""),
             entry("viewer", "view", "viewer-window"), entry("org.example.Suite", "suite", ""),
             entry("org.example.Suite.Helper", "suite --help", "helper"), entry("suite_calc", "calc", ""),
             entry("suite_draw", "draw", ""), entry("tool", "tool", "")});
        const auto* found = entryOfWindow(window, index);
        QTEST(found ? found->id : u"-"_s, "expected");
    }
};

QTEST_APPLESS_MAIN(ApplicationIdentityTest)
#include "tst_ApplicationIdentity.moc"
