#include "Base/PropertyList.h"

#include "Base/PropertyListFormat.h"
#include "Base/WallTime.h"

#include <QDateTime>
#include <QtEndian>

#include <bit>
#include <cmath>
#include <limits>

namespace fendrel::propertyList {

namespace {

QVariant dateAt(double seconds) {
    // Beyond this a count of milliseconds is no calendar's date any more.
    constexpr double farthest = 1e12;
    if (!(std::abs(seconds) < farthest))
        return {};
    return toDateTime(referenceDate + std::chrono::milliseconds(std::llround(seconds * 1000)));
}

class Reader {
public:
    Reader(QByteArrayView list, const Bounds& bounds)
        : m_list(list), m_bytesLeft(bounds.bytes), m_objectsLeft(bounds.objects), m_depthLeft(bounds.depth) {}

    std::optional<QVariant> read() {
        if (m_list.size() < magic.size() + trailerSize || m_list.size() > m_bytesLeft || !m_list.startsWith(magic))
            return {};
        const qsizetype trailer = m_list.size() - trailerSize;
        m_offsetSize = static_cast<quint8>(m_list[trailer + 6]);
        m_referenceSize = static_cast<quint8>(m_list[trailer + 7]);
        m_count = number(trailer + 8, 8);
        const quint64 top = number(trailer + 16, 8);
        const quint64 table = number(trailer + 24, 8);
        const auto end = static_cast<quint64>(trailer);
        const bool isSane = m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8 &&
                            m_count >= 1 && table >= static_cast<quint64>(magic.size()) && table <= end &&
                            m_count <= (end - table) / static_cast<quint64>(m_offsetSize);
        if (!isSane)
            return {};
        m_table = static_cast<qsizetype>(table);
        return object(top);
    }

private:
    /// What is there has to be checked before.
    quint64 number(qsizetype at, int size) const {
        quint64 value = 0;
        for (qsizetype index = at; index < at + size; ++index)
            value = (value << 8) | static_cast<quint8>(m_list[index]);
        return value;
    }

    /// Whether so many bytes of objects follow; counts come from the list and may be anything.
    bool holds(qsizetype at, quint64 size) const { return at <= m_table && size <= static_cast<quint64>(m_table - at); }

    std::optional<QVariant> object(quint64 reference) {
        if (reference >= m_count || m_objectsLeft-- <= 0 || m_depthLeft <= 0)
            return {};
        const quint64 offset = number(m_table + static_cast<qsizetype>(reference) * m_offsetSize, m_offsetSize);
        if (offset < static_cast<quint64>(magic.size()) || offset >= static_cast<quint64>(m_table))
            return {};
        auto at = static_cast<qsizetype>(offset);
        const auto marker = static_cast<quint8>(m_list[at++]);
        const auto kind = static_cast<quint8>(marker & 0xf0);
        switch (kind) {
        case null:
            return simple(marker);
        case integer:
            return integerAt(at, marker & 0xf);
        case real:
        case date & 0xf0:
            return realAt(at, marker);
        default:
            break;
        }
        const auto count = countAt(at, marker & 0xf);
        if (!count)
            return {};
        switch (kind) {
        case data:
            return bytes(at, *count, [](QByteArrayView view) { return QVariant(view.toByteArray()); });
        case ascii:
            return bytes(at, *count, [](QByteArrayView view) { return QVariant(QString::fromLatin1(view)); });
        case utf16:
            if (*count > static_cast<quint64>(std::numeric_limits<qsizetype>::max()) / 2)
                return {};
            return bytes(at, *count * 2, [](QByteArrayView view) {
                QString text(view.size() / 2, Qt::Uninitialized);
                qFromBigEndian<char16_t>(view.data(), text.size(), text.data());
                return QVariant(text);
            });
        case array:
        case set:
            return list(at, *count);
        case dictionary:
            return map(at, *count);
        default:
            return {};
        }
    }

    static std::optional<QVariant> simple(quint8 marker) {
        if (marker == null)
            return QVariant();
        if (marker == boolFalse || marker == boolTrue)
            return QVariant(marker == boolTrue);
        return {};
    }

    std::optional<QVariant> integerAt(qsizetype at, int power) const {
        if (power > 4 || !holds(at, quint64{1} << power))
            return {};
        if (power == 4) // of sixteen bytes only the lower eight are ever in use
            return QVariant(static_cast<qint64>(number(at + 8, 8)));
        return QVariant(static_cast<qint64>(number(at, 1 << power)));
    }

    std::optional<QVariant> realAt(qsizetype at, quint8 marker) const {
        const int power = marker & 0xf;
        if ((power != 2 && power != 3) || !holds(at, quint64{1} << power))
            return {};
        const double value = power == 2 ? static_cast<double>(std::bit_cast<float>(static_cast<quint32>(number(at, 4))))
                                        : std::bit_cast<double>(number(at, 8));
        return marker == date ? dateAt(value) : (marker & 0xf0) == real ? std::optional(QVariant(value)) : std::nullopt;
    }

    /// How many there are, and moves behind it.
    std::optional<quint64> countAt(qsizetype& at, quint8 nibble) const {
        if (nibble != 0xf)
            return nibble;
        if (!holds(at, 1))
            return {};
        const auto marker = static_cast<quint8>(m_list[at++]);
        const int power = marker & 0xf;
        if ((marker & 0xf0) != integer || power > 3 || !holds(at, quint64{1} << power))
            return {};
        const quint64 count = number(at, 1 << power);
        at += qsizetype{1} << power;
        return count;
    }

    template<class Make>
    std::optional<QVariant> bytes(qsizetype at, quint64 size, Make make) {
        if (!holds(at, size) || size > static_cast<quint64>(m_bytesLeft))
            return {};
        m_bytesLeft -= static_cast<qsizetype>(size);
        return make(m_list.sliced(at, static_cast<qsizetype>(size)));
    }

    std::optional<QVariant> referenced(qsizetype at, qsizetype index) {
        --m_depthLeft;
        auto value = object(number(at + index * m_referenceSize, m_referenceSize));
        ++m_depthLeft;
        return value;
    }

    std::optional<QVariant> list(qsizetype at, quint64 count) {
        if (count > static_cast<quint64>(m_list.size()) || !holds(at, count * static_cast<quint64>(m_referenceSize)))
            return {};
        QVariantList values;
        for (qsizetype index = 0; index < static_cast<qsizetype>(count); ++index) {
            auto value = referenced(at, index);
            if (!value)
                return {};
            values.append(std::move(*value));
        }
        return values;
    }

    std::optional<QVariant> map(qsizetype at, quint64 count) {
        if (count > static_cast<quint64>(m_list.size()) ||
            !holds(at, 2 * count * static_cast<quint64>(m_referenceSize)))
            return {};
        const auto size = static_cast<qsizetype>(count);
        QVariantMap values;
        for (qsizetype index = 0; index < size; ++index) {
            const auto key = referenced(at, index);
            if (!key || key->typeId() != QMetaType::QString)
                return {};
            const auto value = referenced(at, size + index);
            if (!value)
                return {};
            values.insert(key->toString(), *value);
        }
        return values;
    }

    QByteArrayView m_list;
    qsizetype m_bytesLeft;
    int m_objectsLeft;
    int m_depthLeft;
    int m_offsetSize = 0;
    int m_referenceSize = 0;
    quint64 m_count = 0;
    qsizetype m_table = 0;
};

} // namespace

std::optional<QVariant> read(QByteArrayView list, const Bounds& bounds) {
    return Reader(list, bounds).read();
}

} // namespace fendrel::propertyList
