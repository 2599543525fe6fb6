#pragma once

#include "Base/WallTime.h"

#include <QObject>
#include <QString>

#include <optional>

namespace fendrel {

/// Where a widget's card has its values from. It works only while the widget shows. Main thread.
class WidgetFeed : public QObject {
    Q_OBJECT
public:
    virtual bool isActive() const = 0; ///< whether its widget shows anywhere
    virtual void setActive(bool isActive) = 0;

    /// Looks for what is new. A forced one, which the user asked for, doesn't heed what was just looked at.
    virtual void refresh(bool force) = 0;

    virtual bool isLoading() const = 0;
    virtual QString error() const { return {}; }           ///< for the user; empty: the last look went well
    virtual std::optional<WallTime> updatedAt() const = 0; ///< of what it has

Q_SIGNALS:
    void changed();
};

} // namespace fendrel
