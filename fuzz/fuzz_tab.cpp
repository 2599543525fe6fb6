// What a browser tells of a tab, and the site of its page.

#include "Focus/BridgeMessage.h"
#include "Focus/BrowserTab.h"
#include "Require.h"

#include <algorithm>
#include <cstdint>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

void look(const std::optional<QString>& site) {
    if (!site)
        return;
    require(!site->isEmpty() && !site->endsWith(u'.') && *site == site->toLower());
    require(
        std::ranges::all_of(*site, [](QChar letter) { return letter.unicode() > 0x20 && letter.unicode() < 0x7f; }));
    // Its own address is of the same site. Hosts that are numbers have several spellings.
    const QString top = site->section(u'.', -1);
    if (!site->startsWith("www."_L1) && !site->contains(u':') && !top.front().isDigit())
        require(siteName(*site) == site);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray line(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    look(siteName(QString::fromUtf8(line)));
    const auto message = bridge::parse(line);
    if (!message)
        return 0;
    require(!bridge::replaces(*message, bridge::Hello{}));
    if (const auto* hello = std::get_if<bridge::Hello>(&*message))
        require(std::ranges::all_of(hello->pids, [](qint64 pid) { return pid > 0; }));
    if (const auto* report = std::get_if<bridge::TabReport>(&*message)) {
        const BrowserTab tab{.browser = {}, .tabID = report->tabID, .url = report->url, .title = report->title};
        require(static_cast<qint64>(tab.tabID) >= 0);
        look(tab.site());
    }
    return 0;
}
