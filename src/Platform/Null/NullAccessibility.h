#pragma once

#include "Ports/Accessibility.h"

namespace fendrel {

class NullAccessibility final : public Accessibility {
public:
    bool isTrusted() const override { return false; }
    void requestPermission() override {}
    QList<WindowInfo> windows(qint64) const override { return {}; }
    std::optional<WindowID> focusedWindow(qint64) const override { return {}; }
    std::optional<WindowID> mainWindow(qint64) const override { return {}; }
    std::optional<QString> title(WindowID) const override { return {}; }
    std::optional<QRect> frame(WindowID) const override { return {}; }
    Handle observe(qint64, Observer) override { return {}; }
    void raise(WindowID) override {}
    void restore(WindowID) override {}
    void minimize(WindowID) override {}
    void close(WindowID) override {}
};

} // namespace fendrel
