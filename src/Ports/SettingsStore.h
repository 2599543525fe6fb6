#pragma once

#include "Base/Handle.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <variant>

namespace fendrel {

/// What a setting can hold. A value keeps its type: a stored string is never read as a boolean.
using StoredValue =
    std::variant<bool, qint64, double, QString, QByteArray, QDateTime, QStringList, QHash<QString, double>>;

/// The user's settings by key. Only stored values live here; defaults belong to whoever reads.
class SettingsStore {
public:
    enum class Urgency {
        atOnce,  ///< on its way to the disk before the call returns
        relaxed, ///< a counter: may be some seconds late on the disk, but is there after a normal quit
    };

    virtual ~SettingsStore() = default;

    virtual std::optional<StoredValue> value(const QString& key) const = 0;
    virtual void set(const QString& key, StoredValue value, Urgency urgency = Urgency::atOnce) = 0;
    virtual void remove(const QString& key) = 0;
    /// Runs when everything that was set so far is on the disk, or with false when it cannot get there. Never from
    /// inside the call, and not after the handle is dropped.
    virtual Handle whenStored(std::function<void(bool isStored)> run) = 0;

    /// The value if it is stored with exactly this type.
    template<class Type>
    std::optional<Type> read(const QString& key) const {
        const auto stored = value(key);
        if (const auto* typed = stored ? std::get_if<Type>(&*stored) : nullptr)
            return *typed;
        return {};
    }

    /// The lenient reader for flags that default to off: a stored boolean, or a stored integer other than zero.
    bool flag(const QString& key) const {
        if (const auto number = read<qint64>(key))
            return *number != 0;
        return read<bool>(key).value_or(false);
    }
};

} // namespace fendrel
