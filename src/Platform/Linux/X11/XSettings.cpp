#include "Platform/Linux/X11/XSettings.h"

#include <QtEndian>

#include <algorithm>
#include <optional>

namespace fendrel {

namespace {

/// Takes numbers and texts off the front of the property; nothing once it is too short.
class Reader {
public:
    explicit Reader(QByteArrayView data) : m_rest(data), m_isBigEndian(!data.isEmpty() && data[0] == 1) {}

    template<class Number>
    std::optional<Number> number() {
        const auto bytes = take(sizeof(Number));
        if (!bytes)
            return {};
        return m_isBigEndian ? qFromBigEndian<Number>(bytes->data()) : qFromLittleEndian<Number>(bytes->data());
    }

    /// A text, which is filled up to a multiple of four bytes.
    std::optional<QString> text(quint32 size) {
        const auto bytes = take(size);
        const qsizetype filling = (4 - qsizetype{size} % 4) % 4;
        if (!bytes || !take(filling))
            return {};
        return QString::fromUtf8(*bytes);
    }

    bool skip(qsizetype size) { return take(size).has_value(); }

private:
    std::optional<QByteArrayView> take(qsizetype size) {
        if (m_rest.size() < size)
            return {};
        const QByteArrayView taken = m_rest.first(size);
        m_rest = m_rest.sliced(size);
        return taken;
    }

    QByteArrayView m_rest;
    bool m_isBigEndian;
};

enum Type : quint8 { integer, string, colour };

} // namespace

XSettings parseXSettings(QByteArrayView property) {
    Reader reader(property);
    XSettings settings;
    if (!reader.skip(8)) // byte order, filling, serial
        return settings;
    const quint32 count = reader.number<quint32>().value_or(0);
    for (quint32 index = 0; index < count; ++index) {
        const auto type = reader.number<quint8>();
        const bool isFilled = reader.skip(1);
        const auto nameSize = reader.number<quint16>();
        const auto name = nameSize ? reader.text(*nameSize) : std::nullopt;
        if (!type || !isFilled || !name || !reader.skip(4)) // serial of the last change
            break;
        if (*type == integer) {
            if (const auto value = reader.number<qint32>())
                settings.insert(*name, *value);
        } else if (*type == string) {
            const auto size = reader.number<quint32>();
            if (const auto value = size ? reader.text(*size) : std::nullopt)
                settings.insert(*name, *value);
        } else if (*type != colour || !reader.skip(8)) {
            break;
        }
    }
    return settings;
}

} // namespace fendrel
