#pragma once

#include "Ports/Clock.h"

#include <QColor>
#include <QObject>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace fendrel {

class AppController;
class GlowStrip;

/// A glow in the mode's tint along all edges of every display while a focus session runs, for those who want it. It
/// swells once when the session starts and at every switch, and is still from then on. Main thread.
class FocusGlow : public QObject {
    Q_OBJECT
public:
    static constexpr int depth = 26;    ///< pixels that it reaches into the display
    static constexpr int lineDepth = 3; ///< where nothing blends windows

    explicit FocusGlow(AppController& controller);
    ~FocusGlow() override;

    void update(); ///< after displays, compositing or the settings changed

    /// How bright it is so long after it was started: it swells beyond its rest and comes back to it.
    static double level(Clock::Duration since);

private:
    void swell();
    void show();
    void paint();

    AppController& m_controller;
    std::map<QString, std::vector<std::unique_ptr<GlowStrip>>> m_strips; ///< by display
    QString m_modeID;
    ContinuousTime m_start{};
    std::optional<Handle> m_frames; ///< while it moves
};

} // namespace fendrel
