#pragma once

namespace fendrel {

/// Fendrel's sounds. One of them each.
enum class Sound { modeSwitch, focusStart, focusStop, messageLetThrough };

/// Plays sounds through whatever the system plays sounds with. Main thread; nothing waits for the end of one, and
/// without a sound system nothing is heard.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;
    virtual void play(Sound sound) = 0;
};

} // namespace fendrel
