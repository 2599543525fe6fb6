// What is a JSON object to a whole parser has the same type to the relay.

#include "Relay/Message.h"
#include "Require.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::string_view view(text.constData(), size);
    const std::string_view type = fendrel::relay::typeOf(view);
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return 0;
    require(fendrel::relay::isObject(view));
    // Escapes are left as they are.
    if (!text.contains('\\'))
        require(document.object()[u"type"].toString() ==
                QString::fromUtf8(type.data(), static_cast<qsizetype>(type.size())));
    return 0;
}
