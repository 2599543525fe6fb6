#include "Base/PropertyList.h"
#include "Base/PropertyListFormat.h"
#include "Base/Seconds.h"
#include "Base/WallTime.h"

#include <QList>

#include <algorithm>
#include <bit>

namespace fendrel::propertyList {

namespace {

class Writer {
public:
    QByteArray write(const QVariant& value) {
        const quint64 top = add(value);
        QByteArray list = magic.toByteArray();
        QList<quint64> offsets;
        for (const QByteArray& object : m_objects) {
            offsets.append(static_cast<quint64>(list.size()));
            list += object;
        }
        const auto table = static_cast<quint64>(list.size());
        for (const quint64 offset : offsets)
            put(list, offset, offsetSize);
        list.append(6, '\0');
        list.append(offsetSize);
        list.append(referenceSize);
        put(list, static_cast<quint64>(m_objects.size()), 8);
        put(list, top, 8);
        put(list, table, 8);
        return list;
    }

private:
    static constexpr char offsetSize = 4;
    static constexpr char referenceSize = 4;

    static void put(QByteArray& list, quint64 value, int size) {
        for (int shift = (size - 1) * 8; shift >= 0; shift -= 8)
            list.append(static_cast<char>(value >> shift));
    }

    static QByteArray head(quint8 kind, qsizetype count) {
        QByteArray bytes;
        bytes.append(static_cast<char>(kind | (count < 0xf ? count : 0xf)));
        if (count >= 0xf) {
            bytes.append(static_cast<char>(integer | 3));
            put(bytes, static_cast<quint64>(count), 8);
        }
        return bytes;
    }

    static QByteArray text(const QString& value) {
        const bool isAscii = std::ranges::all_of(value, [](QChar unit) { return unit.unicode() < 0x80; });
        if (isAscii)
            return head(ascii, value.size()) + value.toLatin1();
        QByteArray bytes = head(utf16, value.size());
        for (const QChar unit : value)
            put(bytes, unit.unicode(), 2);
        return bytes;
    }

    static QByteArray scalar(const QVariant& value) {
        QByteArray bytes;
        switch (value.typeId()) {
        case QMetaType::Bool:
            return bytes.append(static_cast<char>(value.toBool() ? boolTrue : boolFalse));
        case QMetaType::Int:
        case QMetaType::LongLong:
            bytes.append(static_cast<char>(integer | 3));
            put(bytes, static_cast<quint64>(value.toLongLong()), 8);
            return bytes;
        case QMetaType::Double:
            bytes.append(static_cast<char>(real | 3));
            put(bytes, std::bit_cast<quint64>(value.toDouble()), 8);
            return bytes;
        case QMetaType::QDateTime: {
            const double since = Seconds(toWallTime(value.toDateTime()) - referenceDate).count();
            bytes.append(static_cast<char>(date));
            put(bytes, std::bit_cast<quint64>(since), 8);
            return bytes;
        }
        case QMetaType::QByteArray:
            return head(data, value.toByteArray().size()) + value.toByteArray();
        case QMetaType::QString:
            return text(value.toString());
        default:
            return bytes.append(static_cast<char>(null));
        }
    }

    quint64 add(const QVariant& value) {
        QList<quint64> references;
        quint8 kind = array;
        qsizetype count = 0;
        if (value.typeId() == QMetaType::QVariantMap) {
            const auto map = value.toMap();
            kind = dictionary;
            count = map.size();
            for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
                references.append(add(entry.key()));
            for (const QVariant& entry : map)
                references.append(add(entry));
        } else if (value.typeId() == QMetaType::QVariantList) {
            const auto list = value.toList();
            count = list.size();
            for (const QVariant& entry : list)
                references.append(add(entry));
        } else {
            m_objects.append(scalar(value));
            return static_cast<quint64>(m_objects.size() - 1);
        }
        QByteArray bytes = head(kind, count);
        for (const quint64 reference : references)
            put(bytes, reference, referenceSize);
        m_objects.append(bytes);
        return static_cast<quint64>(m_objects.size() - 1);
    }

    QList<QByteArray> m_objects;
};

} // namespace

QByteArray write(const QVariant& value) {
    return Writer().write(value);
}

} // namespace fendrel::propertyList
