#pragma once

#include "Base/Worker.h"
#include "Ports/SoundPlayer.h"

#include <QString>

#include <memory>

namespace fendrel {

/// Sounds through libcanberra, which knows the sound systems that there are. It is opened by the first sound, and its
/// calls may wait for a sound system: they have a thread of their own.
class CanberraSounds final : public SoundPlayer {
public:
    explicit CanberraSounds(QString folder); ///< where the sounds are
    ~CanberraSounds() override;

    void play(Sound sound) override;

private:
    class Output;

    QString m_folder;
    std::unique_ptr<Output> m_output; ///< the worker's alone
    std::unique_ptr<Worker> m_worker; ///< made by the first sound
};

} // namespace fendrel
