#pragma once

#include "Ports/SoundPlayer.h"

namespace fendrel {

class NullSoundPlayer final : public SoundPlayer {
public:
    void play(Sound) override {}
};

} // namespace fendrel
