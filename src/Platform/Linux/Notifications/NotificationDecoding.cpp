#include "Platform/Linux/Notifications/NotificationDecoding.h"

#include <systemd/sd-bus.h>

#include <cstdint>
#include <cstring>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace notificationMessage;

namespace {

constexpr std::size_t longestString = 65'536; // bytes; more than is kept of any

QString text(const char* string) {
    return string == nullptr ? QString()
                             : QString::fromUtf8(string, static_cast<qsizetype>(strnlen(string, longestString)));
}

template<class Number, class Wide>
QVariant number(sd_bus_message* message, char type) {
    Number value{};
    return sd_bus_message_read_basic(message, type, &value) > 0 ? QVariant::fromValue(static_cast<Wide>(value))
                                                                : QVariant();
}

/// A value of a simple type. What is none, a picture for instance, is stepped over.
QVariant value(sd_bus_message* message, const char* type) {
    if (std::strcmp(type, "as") == 0) {
        QStringList list;
        if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "s") < 0)
            return {};
        for (const char* each = nullptr; sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &each) > 0;)
            list.append(text(each));
        sd_bus_message_exit_container(message);
        return list;
    }
    if (type[0] != '\0' && type[1] == '\0') {
        const char* string = nullptr;
        switch (type[0]) {
        case SD_BUS_TYPE_STRING:
            return sd_bus_message_read_basic(message, type[0], &string) > 0 ? text(string) : QVariant();
        case SD_BUS_TYPE_BOOLEAN:
            return number<int, bool>(message, type[0]);
        case SD_BUS_TYPE_BYTE:
            return number<quint8, quint32>(message, type[0]);
        case SD_BUS_TYPE_INT16:
            return number<qint16, qint32>(message, type[0]);
        case SD_BUS_TYPE_UINT16:
            return number<quint16, quint32>(message, type[0]);
        case SD_BUS_TYPE_INT32:
            return number<qint32, qint32>(message, type[0]);
        case SD_BUS_TYPE_UINT32:
            return number<quint32, quint32>(message, type[0]);
        case SD_BUS_TYPE_INT64:
            return number<qint64, qint64>(message, type[0]);
        case SD_BUS_TYPE_UINT64:
            return number<quint64, quint64>(message, type[0]);
        case SD_BUS_TYPE_DOUBLE:
            return number<double, double>(message, type[0]);
        default:
            break;
        }
    }
    sd_bus_message_skip(message, type);
    return {};
}

QVariantMap dictionary(sd_bus_message* message) {
    QVariantMap map;
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}") < 0)
        return map;
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const char* key = nullptr;
        const char* type = nullptr;
        if (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &key) <= 0 ||
            sd_bus_message_peek_type(message, nullptr, &type) <= 0 ||
            sd_bus_message_enter_container(message, SD_BUS_TYPE_VARIANT, type) <= 0)
            return map;
        if (const QVariant found = value(message, type); found.isValid())
            map.insert(text(key), found);
        if (sd_bus_message_exit_container(message) < 0 || sd_bus_message_exit_container(message) < 0)
            return map;
    }
    sd_bus_message_exit_container(message);
    return map;
}

quint64 serialOf(sd_bus_message* message) {
    std::uint64_t serial = 0;
    sd_bus_message_get_cookie(message, &serial);
    return serial;
}

std::optional<NotificationMessage> notify(sd_bus_message* message) {
    const char *name = nullptr, *icon = nullptr, *summary = nullptr, *body = nullptr;
    quint32 replaces = 0;
    if (sd_bus_message_read(message, "susss", &name, &replaces, &icon, &summary, &body) <= 0 ||
        sd_bus_message_skip(message, "as") < 0)
        return {};
    return Notify{.sender = text(sd_bus_message_get_sender(message)),
                  .serial = serialOf(message),
                  .appName = text(name),
                  .replaces = replaces,
                  .summary = text(summary),
                  .body = text(body),
                  .hints = dictionary(message)};
}

std::optional<NotificationMessage> answer(sd_bus_message* message) {
    Answer answer{.receiver = text(sd_bus_message_get_destination(message))};
    std::uint64_t serial = 0;
    if (sd_bus_message_has_signature(message, "u") <= 0 || sd_bus_message_get_reply_cookie(message, &serial) < 0 ||
        sd_bus_message_read_basic(message, SD_BUS_TYPE_UINT32, &answer.id) <= 0)
        return {};
    answer.serial = serial;
    return answer;
}

std::optional<NotificationMessage> askPortal(sd_bus_message* message) {
    const char* id = nullptr;
    sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &id);
    return AskPortal{.sender = text(sd_bus_message_get_sender(message)), .id = text(id)};
}

std::optional<NotificationMessage> fromPortal(sd_bus_message* message) {
    const char *application = nullptr, *id = nullptr;
    if (sd_bus_message_read(message, "ss", &application, &id) <= 0)
        return {};
    return FromPortal{.application = text(application), .id = text(id), .content = dictionary(message)};
}

std::optional<NotificationMessage> askShell(sd_bus_message* message) {
    const char *application = nullptr, *id = nullptr;
    if (sd_bus_message_read(message, "ss", &application, &id) <= 0)
        return {};
    return AskShell{.sender = text(sd_bus_message_get_sender(message)),
                    .application = text(application),
                    .id = text(id),
                    .content = dictionary(message)};
}

std::optional<NotificationMessage> newOwner(sd_bus_message* message) {
    const char *name = nullptr, *previous = nullptr, *owner = nullptr;
    if (sd_bus_message_read(message, "sss", &name, &previous, &owner) <= 0)
        return {};
    return NewOwner{.name = text(name), .owner = text(owner)};
}

/// With another signature the receiver takes no notice of it either.
bool isCall(sd_bus_message* message, const char* interface, const char* member, const char* signature) {
    return sd_bus_message_is_method_call(message, interface, member) > 0 &&
           sd_bus_message_has_signature(message, signature) > 0;
}

} // namespace

std::optional<NotificationMessage> decodeNotification(sd_bus_message* message) {
    constexpr auto add = "AddNotification";
    if (isCall(message, "org.freedesktop.Notifications", "Notify", "susssasa{sv}i"))
        return notify(message);
    if (isCall(message, "org.freedesktop.portal.Notification", add, "sa{sv}"))
        return askPortal(message);
    if (isCall(message, "org.freedesktop.impl.portal.Notification", add, "ssa{sv}"))
        return fromPortal(message);
    if (isCall(message, "org.gtk.Notifications", add, "ssa{sv}"))
        return askShell(message);
    if (sd_bus_message_is_signal(message, "org.freedesktop.DBus", "NameOwnerChanged") > 0)
        return newOwner(message);
    std::uint8_t type = 0;
    sd_bus_message_get_type(message, &type);
    return type == SD_BUS_MESSAGE_METHOD_RETURN ? answer(message) : std::nullopt;
}

} // namespace fendrel
