#pragma once

#include "Ports/Remedies.h"

namespace fendrel {

class NullRemedies final : public Remedies {
public:
    bool hasPage(const QString&) const override { return false; }
    void openPage(const QString&) override {}
    QString command(const QString&) const override { return {}; }
};

} // namespace fendrel
