#pragma once

#include "Ports/Panels.h"

namespace fendrel {

class NullPanels final : public Panels {
public:
    void prepare(quintptr, Kind) override {}
    void reserve(quintptr, Qt::Edge, const QRect&, const QRect&) override {}
    void setInputRegion(quintptr, const QRegion&) override {}
    void setBlurRegion(quintptr, const QRegion&) override {}
    void activate(quintptr) override {}
    bool hasTransparency() const override { return false; }
    bool canBlur() const override { return false; }
};

} // namespace fendrel
