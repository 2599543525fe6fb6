#pragma once

#include "Ports/HotKeys.h"

#include <QHash>
#include <QStringList>

#include <map>

namespace fendrel {

/// A keyboard of combinations, written as "2048+F".
class FakeHotKeys final : public HotKeys {
public:
    std::optional<Handle> grab(int modifiers, const QString& key, std::function<void()> onPressed) override {
        const QString keys = QString::number(modifiers) + u'+' + key;
        ++grabs;
        if (others.contains(keys) || held.contains(keys))
            return {};
        held[keys] = std::move(onPressed);
        return Handle([this, keys] { held.erase(keys); });
    }
    void yieldKeyboard() override {}
    QString label(std::uint32_t nativeScanCode) const override { return labels.value(nativeScanCode); }

    bool press(const QString& keys) {
        const auto found = held.find(keys);
        if (found == held.end())
            return false;
        const auto run = found->second;
        run();
        return true;
    }

    std::map<QString, std::function<void()>> held;
    QStringList others; ///< what another program holds
    QHash<std::uint32_t, QString> labels;
    int grabs = 0; ///< asked for
};

} // namespace fendrel
