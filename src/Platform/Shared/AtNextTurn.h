#pragma once

#include "Base/Handle.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <functional>
#include <memory>
#include <utility>

namespace fendrel {

/// For answers that are known at once but must not come before the question has returned.
inline Handle atNextTurn(std::function<void()> run) {
    const auto isWanted = std::make_shared<bool>(true);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [isWanted, run = std::move(run)] {
            if (*isWanted)
                run();
        },
        Qt::QueuedConnection);
    return Handle([isWanted] { *isWanted = false; });
}

} // namespace fendrel
