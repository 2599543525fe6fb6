#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace fendrel {

/// What an application shows on its own button.
struct AppBadge {
    std::optional<qint64> count{};    ///< unread messages and the like
    std::optional<double> progress{}; ///< 0 to 1
    bool isUrgent{};                  ///< asks for the user, as a window that wants attention does
    bool operator==(const AppBadge&) const = default;
};

/// The badges of running applications. Main thread.
class Badges {
public:
    virtual ~Badges() = default;
    virtual AppBadge badge(const QString& bundleID) const = 0;
    std::function<void(const QString& bundleID)> onChanged = [](const QString&) {};
};

} // namespace fendrel
