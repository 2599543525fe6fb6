#pragma once

#include "Ports/Remedies.h"

namespace fendrel {

class NullRemedies final : public Remedies {
public:
    QHash<QString, Remedy> find() const override { return {}; }
    void open(const QStringList&) override {}
};

} // namespace fendrel
