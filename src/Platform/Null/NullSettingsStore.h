#pragma once

#include "Ports/SettingsStore.h"

#include <utility>

namespace fendrel {

/// Remembers for as long as it lives.
class NullSettingsStore final : public SettingsStore {
public:
    std::optional<StoredValue> value(const QString& key) const override {
        const auto found = m_values.constFind(key);
        return found == m_values.constEnd() ? std::nullopt : std::optional(*found);
    }
    void set(const QString& key, StoredValue value, Urgency) override { m_values.insert(key, value); }
    void remove(const QString& key) override { m_values.remove(key); }
    Handle whenStored(std::function<void(bool)>) override { return {}; } // there is no disk

private:
    QHash<QString, StoredValue> m_values;
};

} // namespace fendrel
