#pragma once

#include "Ports/SoundPlayer.h"

#include <QList>

namespace fendrel {

class FakeSounds final : public SoundPlayer {
public:
    void play(Sound sound) override { played.append(sound); }
    QList<Sound> played;
};

} // namespace fendrel
