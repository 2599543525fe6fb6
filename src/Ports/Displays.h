#pragma once

#include <QList>
#include <QRect>
#include <QString>

#include <functional>

namespace fendrel {

struct Display {
    QString id{};     ///< the same again when the display comes back
    QRect frame{};    ///< device pixels, from the desktop's origin
    QRect workArea{}; ///< the frame without what panels reserve
    bool isMain{};
    QString space{};     ///< the virtual desktop it shows
    bool isFullScreen{}; ///< a window that fills it is in front there
    bool operator==(const Display&) const = default;
};

/// The connected displays. Main thread.
class Displays {
public:
    virtual ~Displays() = default;
    virtual QList<Display> all() const = 0;       ///< the main one first; empty only when the system names none
    std::function<void()> onChanged = [] {};      ///< displays came, went, moved or changed their size
    std::function<void()> onSpaceChanged = [] {}; ///< another virtual desktop is shown
};

} // namespace fendrel
