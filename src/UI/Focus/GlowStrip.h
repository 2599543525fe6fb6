#pragma once

#include <QColor>
#include <QRasterWindow>

namespace fendrel {

/// The part of a display's glow that is at one of its edges: a thin window of its own, so that no picture of the size
/// of the display is kept for it.
class GlowStrip : public QRasterWindow {
    Q_OBJECT
public:
    /// `edges`: of the display, in the window's coordinates.
    struct Look {
        QRect edges{};
        QColor tint{};
        double level{};   ///< 0 to 1
        bool isBlended{}; ///< else it is a plain line
        bool operator==(const Look&) const = default;
    };

    GlowStrip();
    void setLook(const Look& look);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Look m_look;
};

} // namespace fendrel
