#pragma once

#include "Focus/Judgement.h"

#include <QObject>
#include <QString>

namespace fendrel::drift {
Q_NAMESPACE

/// What happens to an application that was judged, and why.
enum class Decision {
    noMode,      ///< let be: it belongs to no mode that exists
    currentMode, ///< let be: it belongs here
    notCertain,  ///< let be: only certain verdicts stop anything
    allowedOnce, ///< let be: the user allowed it for this session
    notInFront,  ///< let be: something else is in front by now
    noFocus,     ///< let be: there is no focus session
    gate,        ///< stopped
};
Q_ENUM_NS(Decision)

struct Facts {
    bool modeExists{};
    bool isCurrentMode{};
    Certainty certainty{};
    bool isAllowedOnce{};
    bool isInFront{};
    bool isFocusOn{};
};

constexpr Decision decide(const Facts& facts) {
    if (!facts.modeExists)
        return Decision::noMode;
    if (facts.isCurrentMode)
        return Decision::currentMode;
    if (facts.certainty != Certainty::certain)
        return Decision::notCertain;
    if (facts.isAllowedOnce)
        return Decision::allowedOnce;
    if (!facts.isInFront)
        return Decision::notInFront;
    if (!facts.isFocusOn)
        return Decision::noFocus;
    return Decision::gate;
}

} // namespace fendrel::drift
