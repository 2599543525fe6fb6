#pragma once

#include "Base/Handle.h"
#include "Base/Worker.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <functional>
#include <memory>
#include <utility>

namespace fendrel {

/// Runs `work` on the worker and hands what it gives to `done` on the main thread. Without the handle the work is done
/// all the same.
template<class Value>
Handle onWorker(Worker& worker, std::function<Value()> work, std::function<void(const Value&)> done) {
    const auto waiting = std::make_shared<std::function<void(const Value&)>>(std::move(done));
    worker.post({}, [work = std::move(work), waiting] {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [waiting, value = work()] {
                if (const auto told = std::exchange(*waiting, {}))
                    told(value);
            },
            Qt::QueuedConnection);
    });
    return Handle([waiting] { *waiting = {}; });
}

} // namespace fendrel
