#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QVariant>

#include <optional>

/// Binary property lists ("bplist00"; the format is laid down in the comments of Core Foundation's CFBinaryPList.c).
/// Dictionaries are QVariantMap, arrays QVariantList, strings QString, data QByteArray, dates QDateTime (UTC), numbers
/// qint64 or double, null an invalid QVariant.
namespace fendrel::propertyList {

/// A list may share its objects: a few hundred bytes can stand for more than any memory holds. What is read out of it
/// is bounded, not only the list itself.
struct Bounds {
    qsizetype bytes = qsizetype{1} << 20; ///< of the list, and of the text and data read out of it
    int objects = 10'000;                 ///< read, a shared one as often as it occurs
    int depth = 32;
};

/// Nothing for what is not a whole, well-formed list within the bounds.
std::optional<QVariant> read(QByteArrayView list, const Bounds& bounds = {});

/// For values of the kinds above; the depth is the caller's care.
QByteArray write(const QVariant& value);

} // namespace fendrel::propertyList
