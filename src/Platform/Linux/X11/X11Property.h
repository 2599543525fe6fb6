#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstring>
#include <optional>

namespace fendrel {

/// A property of a window. One that is missing, or whose format is another one, reads as empty.
struct X11Property {
    int format{}; ///< bits of each item; 0 when the property is missing
    bool isUtf8{};
    QByteArray data{};

    QByteArray bytes() const { return format == 8 ? data : QByteArray(); }

    QString text() const { return isUtf8 ? QString::fromUtf8(bytes()) : QString::fromLatin1(bytes()); }

    QList<quint32> numbers() const {
        QList<quint32> numbers;
        if (format == 32 && !data.isEmpty()) {
            numbers.resize(data.size() / qsizetype{sizeof(quint32)});
            std::memcpy(numbers.data(), data.constData(), static_cast<std::size_t>(numbers.size()) * sizeof(quint32));
        }
        return numbers;
    }

    std::optional<quint32> number() const {
        const auto all = numbers();
        return all.isEmpty() ? std::nullopt : std::optional(all.first());
    }
};

} // namespace fendrel
