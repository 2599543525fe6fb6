#pragma once

#include "Ports/SystemDock.h"

namespace fendrel {

class NullSystemDock final : public SystemDock {
public:
    std::optional<QString> running() const override { return {}; }
    QString name(const QString& dock) const override { return dock; }
    QList<Qt::Edge> edges() const override { return {}; }
    Handle read(const QString&, ReadDone) override { return {}; }
    Handle write(const SystemDockSettings&, WriteDone) override { return {}; }
    void restart(const QString&) override {}
};

} // namespace fendrel
