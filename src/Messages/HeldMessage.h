#pragma once

#include "Base/Seconds.h"
#include "Base/WallTime.h"
#include "Modes/Mode.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QUuid>

namespace fendrel {

/// A notification of an application that belongs to another mode.
struct HeldMessage {
    qint64 id{}; ///< of its record
    QString bundleID{};
    QString title{};
    QString subtitle{};
    QString body{};
    WallTime date{};
    bool operator==(const HeldMessage&) const = default;
};

/// A held message that the user should see now.
struct MessageAlert {
    QUuid id{};
    HeldMessage message{};
    Mode mode{};    ///< that the message belongs to
    QString why{};  ///< for the user
    Seconds wait{}; ///< that entering the mode costs
};

/// What was held during a stretch of work, shown when it ends.
struct MessageDigest {
    QUuid id{};
    Mode mode{};                     ///< of the stretch that ended
    QList<HeldMessage> messages{};   ///< newest first
    QHash<qint64, QString> urgent{}; ///< message -> why it was urgent
};

} // namespace fendrel
