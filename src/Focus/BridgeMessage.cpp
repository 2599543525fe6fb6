#include "Focus/BridgeMessage.h"

#include "Base/BridgeProtocol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace fendrel::bridge {

using namespace Qt::StringLiterals;

namespace {

/// Whole and not negative: browsers use -1 for a tab that is none.
std::optional<TabID> tabID(const QJsonObject& object) {
    const qint64 number = object["tabId"_L1].toInteger(-1);
    return number < 0 ? std::nullopt : std::optional(TabID(number));
}

std::optional<Message> hello(const QJsonObject& object) {
    const QJsonValue pids = object["pids"_L1];
    if (!pids.isArray())
        return {};
    Hello message;
    for (const auto pid : pids.toArray()) {
        if (const qint64 number = pid.toInteger(); number > 0)
            message.pids.append(number);
    }
    return message;
}

std::optional<Message> tabReport(const QJsonObject& object) {
    const auto id = tabID(object);
    const QJsonValue url = object["url"_L1], title = object["title"_L1];
    const QJsonValue focused = object["focused"_L1], isPrivate = object["private"_L1];
    const auto mayBeFlag = [](const QJsonValue& value) { return value.isBool() || value.isUndefined(); };
    if (!id || !url.isString() || !title.isString() || !mayBeFlag(focused) || !mayBeFlag(isPrivate))
        return {};
    return TabReport{.tabID = *id,
                     .url = webAddress(url.toString()),
                     .title = title.toString(),
                     .isFocused = focused.toBool(true),
                     .isPrivate = isPrivate.toBool()};
}

} // namespace

std::optional<Message> parse(const QByteArray& line) {
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QByteArray name = object["type"_L1].toString().toUtf8();
    const std::string_view type(name.constData(), static_cast<std::size_t>(name.size()));
    if (type == typeTab)
        return tabReport(object);
    if (type == typeHello)
        return hello(object);
    const auto id = tabID(object);
    if (id && type == typeAsk)
        return Ask{.tabID = *id};
    if (id && type == typeClosed)
        return Closed{.tabID = *id};
    return {};
}

bool replaces(const Message& later, const Message& earlier) {
    const auto *after = std::get_if<TabReport>(&later), *before = std::get_if<TabReport>(&earlier);
    return after && before && after->tabID == before->tabID;
}

} // namespace fendrel::bridge
