#include "Modes/ModeCatalog.h"

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QSet<QString> builtInSharedApps() {
    return {
        u"com.apple.finder"_s,    u"com.apple.systempreferences"_s, u"com.apple.ActivityMonitor"_s,
        u"com.apple.Safari"_s,    u"com.google.Chrome"_s,           u"company.thebrowser.Browser"_s,
        u"org.mozilla.firefox"_s, u"com.brave.Browser"_s,           u"com.microsoft.edgemac"_s,
        u"com.vivaldi.Vivaldi"_s, u"org.chromium.Chromium"_s,
    };
}

QList<Mode> builtInTemplates() {
    return {
        {
            .id = u"writing"_s,
            .name = u"Writing"_s,
            .symbol = u"pencil"_s,
            .tint = Tint::amber,
            .apps = {u"com.google.Chrome"_s, u"notion.id"_s, u"com.apple.Notes"_s, u"md.obsidian"_s,
                     u"com.apple.iWork.Pages"_s, u"com.microsoft.Word"_s, u"com.ulyssesapp.mac"_s,
                     u"com.apple.TextEdit"_s, u"com.openai.chat"_s},
            .sites = {u"docs.google.com"_s, u"notion.so"_s, u"medium.com"_s, u"substack.com"_s, u"grammarly.com"_s,
                      u"chatgpt.com"_s, u"claude.ai"_s},
            .widgets = {u"timer"_s, u"wordCount"_s, u"note"_s, u"intention"_s},
        },
        {
            .id = u"building"_s,
            .name = u"Building"_s,
            .symbol = u"hammer"_s,
            .tint = Tint::blue,
            .apps = {u"com.apple.dt.Xcode"_s, u"com.todesktop.230313mzl4w4u92"_s, u"dev.zed.Zed"_s,
                     u"com.microsoft.VSCode"_s, u"com.apple.Terminal"_s, u"com.mitchellh.ghostty"_s,
                     u"com.googlecode.iterm2"_s, u"com.github.GitHubClient"_s, u"com.anthropic.claudefordesktop"_s,
                     u"com.google.Chrome"_s},
            .sites = {u"github.com"_s, u"gitlab.com"_s, u"stackoverflow.com"_s, u"developer.apple.com"_s,
                      u"swift.org"_s, u"developer.mozilla.org"_s, u"vercel.com"_s, u"localhost"_s, u"claude.ai"_s,
                      u"chatgpt.com"_s},
            .widgets = {u"timer"_s, u"github"_s, u"aiUsage"_s, u"system"_s},
        },
        {
            .id = u"social"_s,
            .name = u"Social"_s,
            .symbol = u"bubble.left.and.bubble.right"_s,
            .tint = Tint::coral,
            .apps = {u"com.tinyspeck.slackmacgap"_s, u"com.hnc.Discord"_s, u"com.apple.MobileSMS"_s,
                     u"net.whatsapp.WhatsApp"_s, u"ru.keepcoder.Telegram"_s, u"com.apple.mail"_s,
                     u"com.apple.FaceTime"_s},
            .sites = {u"x.com"_s, u"twitter.com"_s, u"instagram.com"_s, u"facebook.com"_s, u"threads.net"_s,
                      u"reddit.com"_s, u"youtube.com"_s, u"tiktok.com"_s, u"linkedin.com"_s, u"discord.com"_s,
                      u"web.whatsapp.com"_s, u"messenger.com"_s, u"bsky.app"_s},
            .entryDelay = 15s,
            .widgets = {u"calendar"_s, u"today"_s},
            .dailyBudget = 900s,
        },
        {
            .id = u"meeting"_s,
            .name = u"Meeting"_s,
            .symbol = u"video"_s,
            .tint = Tint::teal,
            .apps = {u"us.zoom.xos"_s, u"com.microsoft.teams2"_s, u"com.apple.FaceTime"_s, u"com.apple.iCal"_s,
                     u"com.apple.Notes"_s, u"com.loom.desktop"_s},
            .sites = {u"meet.google.com"_s, u"zoom.us"_s, u"teams.microsoft.com"_s, u"calendar.google.com"_s,
                      u"loom.com"_s},
            .widgets = {u"calendar"_s, u"onAir"_s, u"note"_s},
        },
        {
            .id = u"design"_s,
            .name = u"Design"_s,
            .symbol = u"paintbrush"_s,
            .tint = Tint::pink,
            .apps = {u"com.figma.Desktop"_s, u"com.bohemiancoding.sketch3"_s, u"com.adobe.Photoshop"_s,
                     u"com.adobe.illustrator"_s, u"com.pixelmatorteam.pixelmator.x"_s, u"com.apple.freeform"_s,
                     u"com.apple.iWork.Keynote"_s, u"com.apple.Preview"_s},
            .sites = {u"figma.com"_s, u"dribbble.com"_s, u"behance.net"_s, u"mobbin.com"_s, u"fonts.google.com"_s},
            .widgets = {u"timer"_s, u"nowPlaying"_s, u"shelf"_s},
        },
        {
            .id = u"study"_s,
            .name = u"Study"_s,
            .symbol = u"graduationcap"_s,
            .tint = Tint::purple,
            .apps = {u"com.apple.iBooksX"_s, u"com.apple.Notes"_s, u"notion.id"_s, u"md.obsidian"_s,
                     u"com.apple.Preview"_s, u"net.ankiweb.dtop"_s, u"com.apple.Dictionary"_s,
                     u"com.apple.reminders"_s},
            .sites = {u"wikipedia.org"_s, u"coursera.org"_s, u"khanacademy.org"_s, u"edx.org"_s,
                      u"scholar.google.com"_s, u"arxiv.org"_s},
            .widgets = {u"timer"_s, u"note"_s, u"garden"_s},
        },
        {
            .id = u"founder"_s,
            .name = u"Founder"_s,
            .symbol = u"briefcase"_s,
            .tint = Tint::green,
            .apps = {u"com.apple.mail"_s, u"com.superhuman.electron"_s, u"com.apple.iCal"_s, u"notion.id"_s,
                     u"com.linear"_s, u"com.apple.iWork.Numbers"_s, u"com.microsoft.Excel"_s,
                     u"com.apple.iWork.Keynote"_s},
            .sites = {u"mail.google.com"_s, u"stripe.com"_s, u"linear.app"_s, u"calendar.google.com"_s,
                      u"docs.google.com"_s},
            .widgets = {u"revenue"_s, u"calendar"_s, u"reminders"_s},
        },
    };
}

} // namespace

ModeCatalog ModeCatalog::with(const NativeApps& native) {
    ModeCatalog catalog{.sharedApps = builtInSharedApps() + native.shared, .templates = builtInTemplates()};
    for (Mode& mode : catalog.templates) {
        for (const QString& bundleID : native.byTemplate.value(mode.id)) {
            if (!mode.apps.contains(bundleID))
                mode.apps.append(bundleID);
        }
    }
    return catalog;
}

} // namespace fendrel
