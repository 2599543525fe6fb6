#pragma once

#include "Ports/SettingsStore.h"

namespace fendrel {

class FakeSettings final : public SettingsStore {
public:
    std::optional<StoredValue> value(const QString& key) const override {
        return values.contains(key) ? std::optional(values.value(key)) : std::nullopt;
    }
    void set(const QString& key, StoredValue value, Urgency) override {
        ++writes;
        values.insert(key, std::move(value));
    }
    void remove(const QString& key) override {
        ++writes;
        values.remove(key);
    }

    QHash<QString, StoredValue> values; ///< prepared by the test without counting as a write
    int writes = 0;                     ///< calls of set and remove
};

} // namespace fendrel
