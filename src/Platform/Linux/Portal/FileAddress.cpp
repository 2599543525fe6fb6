#include "Platform/Linux/Portal/FileAddress.h"

#include <QByteArray>
#include <QStringDecoder>

namespace fendrel {

using namespace Qt::StringLiterals;

std::optional<QString> pathOfFileAddress(const QString& address) {
    for (const auto start : {"file://localhost/"_L1, "file:///"_L1}) {
        if (!address.startsWith(start, Qt::CaseInsensitive))
            continue;
        // Not by QUrl, which passes over bytes that are no text.
        const QByteArray bytes = QByteArray::fromPercentEncoding(address.sliced(start.size() - 1).toUtf8());
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString path = decoder(bytes);
        return decoder.hasError() || path.contains(QChar::Null) ? std::nullopt : std::optional(path);
    }
    return {};
}

} // namespace fendrel
