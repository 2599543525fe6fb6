#include "Ports/StoredValueJson.h"

#include "Base/Overloaded.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMetaType>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace fendrel::StoredValueJson {

using namespace Qt::StringLiterals;

namespace {

constexpr auto doubleTag = "$double"_L1;
constexpr auto dateTag = "$date"_L1;
constexpr auto textTag = "$data"_L1;
constexpr auto bytesTag = "$base64"_L1;
constexpr auto dictionaryTag = "$dictionary"_L1;

bool isWhole(const QJsonValue& number) {
    return number.toVariant().typeId() == QMetaType::LongLong;
}

QJsonValue encodeNumber(double number) {
    if (number == 0 && std::signbit(number))
        return u"-0"_s; // as a number it would come back without its sign
    if (!std::isfinite(number))
        return QString::number(number); // JSON has no such number
    return number;
}

std::optional<double> decodeNumber(const QJsonValue& value) {
    if (value.isDouble())
        return value.toDouble();
    bool isNumber = false;
    const double number = value.toString().toDouble(&isNumber);
    if (isNumber && encodeNumber(number) == value)
        return number;
    return {};
}

QJsonObject tagged(QLatin1StringView tag, const QJsonValue& value) {
    return {{QString(tag), value}};
}

QJsonValue encodeDouble(double number) {
    const QJsonValue plain = encodeNumber(number);
    return plain.isDouble() && !isWhole(plain) ? plain : tagged(doubleTag, plain);
}

QJsonValue encodeBytes(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    if (text.toUtf8() == bytes)
        return tagged(textTag, text);
    return tagged(bytesTag, QString::fromLatin1(bytes.toBase64()));
}

QJsonValue encodeDictionary(const QHash<QString, double>& dictionary) {
    QJsonObject object;
    bool looksTagged = false;
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry) {
        object.insert(entry.key(), encodeNumber(entry.value()));
        looksTagged = looksTagged || entry.key().startsWith(u'$');
    }
    return looksTagged ? tagged(dictionaryTag, object) : object;
}

std::optional<StoredValue> decodeDictionary(const QJsonObject& object) {
    QHash<QString, double> dictionary;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const auto number = decodeNumber(entry.value());
        if (!number)
            return {};
        dictionary.insert(entry.key(), *number);
    }
    return dictionary;
}

std::optional<StoredValue> decodeDate(const QJsonValue& value) {
    const auto date = QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
    if (date.isValid())
        return date.toUTC();
    return value == QString() ? std::optional<StoredValue>(QDateTime()) : std::nullopt;
}

std::optional<StoredValue> decodeBytes(const QJsonValue& value) {
    const QByteArray text = value.toString().toLatin1();
    const QByteArray bytes = QByteArray::fromBase64(text);
    if (value.isString() && bytes.toBase64() == text) // the decoder skips what it does not know
        return bytes;
    return {};
}

std::optional<StoredValue> decodeTagged(const QString& tag, const QJsonValue& value) {
    if (tag == doubleTag)
        return decodeNumber(value);
    if (tag == dateTag)
        return decodeDate(value);
    if (tag == textTag)
        return value.isString() ? std::optional<StoredValue>(value.toString().toUtf8()) : std::nullopt;
    if (tag == bytesTag)
        return decodeBytes(value);
    if (tag == dictionaryTag)
        return value.isObject() ? decodeDictionary(value.toObject()) : std::nullopt;
    return {}; // a later version's
}

std::optional<StoredValue> decodeObject(const QJsonObject& object) {
    const auto first = object.begin();
    if (first != object.end() && first.key().startsWith(u'$'))
        return object.size() == 1 ? decodeTagged(first.key(), first.value()) : std::nullopt;
    return decodeDictionary(object);
}

std::optional<StoredValue> decodeList(const QJsonArray& array) {
    QStringList list;
    for (const auto& item : array) {
        if (!item.isString())
            return {};
        list.append(item.toString());
    }
    return list;
}

} // namespace

QJsonValue encode(const StoredValue& value) {
    return std::visit(
        Overloaded{
            [](bool flag) { return QJsonValue(flag); },
            [](qint64 number) { return QJsonValue(number); },
            [](double number) { return encodeDouble(number); },
            [](const QString& text) { return QJsonValue(text); },
            [](const QByteArray& bytes) { return encodeBytes(bytes); },
            [](const QDateTime& date) { return QJsonValue(tagged(dateTag, date.toUTC().toString(Qt::ISODateWithMs))); },
            [](const QStringList& list) { return QJsonValue(QJsonArray::fromStringList(list)); },
            [](const QHash<QString, double>& dictionary) { return encodeDictionary(dictionary); },
        },
        value);
}

std::optional<StoredValue> decode(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        if (isWhole(value))
            return value.toInteger();
        return value.toDouble();
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array:
        return decodeList(value.toArray());
    case QJsonValue::Object:
        return decodeObject(value.toObject());
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return {};
}

} // namespace fendrel::StoredValueJson
