#pragma once

#include "Platform/Linux/Desktop/BusCall.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace fendrel {

namespace bannerState {
Q_NAMESPACE

enum class Banners {
    shownByDefault, ///< nobody ever set it
    shown,
    quiet,
};
Q_ENUM_NS(Banners)

} // namespace bannerState

using bannerState::Banners;

/// The switch by which one kind of notification server keeps its banners away. Main thread.
class BannerSwitch {
public:
    using ReadDone = std::function<void(std::optional<Banners>)>; ///< nothing: it could not be asked
    using WriteDone = std::function<void(bool isWritten)>;

    virtual ~BannerSwitch() = default;

    virtual QString server() const = 0; ///< what the notification server calls itself
    virtual Handle read(const WaitUntil& deadline, ReadDone done) = 0;
    virtual Handle write(Banners banners, const WaitUntil& deadline, WriteDone done) = 0;
};

} // namespace fendrel
