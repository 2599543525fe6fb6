#pragma once

#include <QList>
#include <QRect>

#include <array>
#include <optional>

namespace fendrel {

/// What a panel keeps other windows off, as _NET_WM_STRUT_PARTIAL tells it: a depth from each edge of the whole
/// desktop (not of a display), and along that edge the first and the last pixel. Device pixels.
struct Strut {
    struct Side {
        int depth{};
        int first{};
        int last{};
        bool operator==(const Side&) const = default;
    };
    Side left{};
    Side right{};
    Side top{};
    Side bottom{};
    bool operator==(const Strut&) const = default;

    /// From the property's twelve numbers, or from the four of the older _NET_WM_STRUT. Nothing when neither says
    /// anything, so that windows without a strut cost nothing.
    static std::optional<Strut> fromProperties(const QList<quint32>& partial, const QList<quint32>& whole,
                                               QSize desktop);
    std::array<quint32, 12> toProperty() const;
};

/// What panels leave of a display.
QRect workArea(const QRect& display, const QList<Strut>& struts, QSize desktop);

/// The strut that reserves `area` along an edge of `display`. Nothing when another display lies beyond that edge:
/// a strut counts from the desktop's edge, so it would swallow that display.
std::optional<Strut> strutFor(Qt::Edge edge, const QRect& display, const QRect& area, const QList<QRect>& displays,
                              QSize desktop);

} // namespace fendrel
