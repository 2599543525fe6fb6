#pragma once

#include "Modes/SiteName.h"

#include <QString>
#include <QUrl>

#include <compare>
#include <optional>

namespace fendrel {

/// One connection of a browser: a browser that connects again is another one.
enum class BrowserID : int {};
/// The browser's own number of a tab, 0 or more.
enum class TabID : qint64 {};

/// Which tab, whatever it shows.
struct TabKey {
    BrowserID browser{};
    TabID tab{};
    auto operator<=>(const TabKey&) const = default;
};

/// What a browser told of its active tab.
struct BrowserTab {
    BrowserID browser{};
    TabID tabID{};
    QUrl url{};
    QString title{};
    bool isFocused{true}; ///< its window was the one that its browser has in front
    bool isPrivate{};     ///< nothing of it may be kept
    bool operator==(const BrowserTab&) const = default;

    TabKey key() const { return {.browser = browser, .tab = tabID}; }

    /// Only pages of the web have a site.
    std::optional<QString> site() const {
        const bool isWeb = url.scheme() == QLatin1StringView("https") || url.scheme() == QLatin1StringView("http");
        return isWeb ? siteName(url) : std::nullopt;
    }
};

} // namespace fendrel
