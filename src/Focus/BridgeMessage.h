#pragma once

#include "Focus/BrowserTab.h"

#include <QByteArray>
#include <QList>

#include <optional>
#include <string_view>
#include <variant>

namespace fendrel::bridge {

/// What a browser's relay and extension tell; see Base/BridgeProtocol.h.
struct Hello {
    QList<qint64> pids{}; ///< of the browser
};
struct TabReport {
    TabID tabID{};
    QUrl url{};
    QString title{};
    bool isFocused{true};
    bool isPrivate{};
};
struct Ask {
    TabID tabID{};
};
struct Closed {
    TabID tabID{};
};
using Message = std::variant<Hello, TabReport, Ask, Closed>;

/// One of the protocol's own words.
inline QString text(std::string_view word) {
    return QString::fromLatin1(word.data(), static_cast<qsizetype>(word.size()));
}

/// A line from a browser. Nothing for what is no message, or lacks something, or has it of a wrong type.
std::optional<Message> parse(const QByteArray& line);

/// Whether a message makes the one right before it needless: a newer report of the same tab.
bool replaces(const Message& later, const Message& earlier);

} // namespace fendrel::bridge
