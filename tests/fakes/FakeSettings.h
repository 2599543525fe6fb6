#pragma once

#include "Ports/SettingsStore.h"

#include <QList>

#include <memory>
#include <utility>

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
    Handle whenStored(std::function<void(bool)> run) override {
        const auto waiting = std::make_shared<std::function<void(bool)>>(std::move(run));
        m_awaitingDisk.append(waiting);
        return Handle([waiting] { *waiting = [](bool) {}; });
    }

    /// The disk has caught up, or refused.
    void finishWriting(bool isStored = true) {
        for (const auto& waiting : std::exchange(m_awaitingDisk, {}))
            (*waiting)(isStored);
    }

    QHash<QString, StoredValue> values; ///< prepared by the test without counting as a write
    int writes = 0;                     ///< calls of set and remove

private:
    QList<std::shared_ptr<std::function<void(bool)>>> m_awaitingDisk;
};

} // namespace fendrel
