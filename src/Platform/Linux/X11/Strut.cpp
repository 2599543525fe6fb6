#include "Platform/Linux/X11/Strut.h"

#include <algorithm>

namespace fendrel {

namespace {

int pixels(quint32 value) {
    // Some panels write garbage; nothing is wider than what the protocol can name.
    return static_cast<int>(std::min<quint32>(value, 65'535));
}

Strut::Side side(quint32 depth, quint32 first, quint32 last) {
    return {.depth = pixels(depth), .first = pixels(first), .last = pixels(last)};
}

} // namespace

std::optional<Strut> Strut::fromProperties(const QList<quint32>& partial, const QList<quint32>& whole, QSize desktop) {
    Strut strut;
    if (partial.size() >= 12) {
        strut = {.left = side(partial[0], partial[4], partial[5]),
                 .right = side(partial[1], partial[6], partial[7]),
                 .top = side(partial[2], partial[8], partial[9]),
                 .bottom = side(partial[3], partial[10], partial[11])};
    } else if (whole.size() >= 4) {
        const auto width = static_cast<quint32>(desktop.width() - 1);
        const auto height = static_cast<quint32>(desktop.height() - 1);
        strut = {.left = side(whole[0], 0, height),
                 .right = side(whole[1], 0, height),
                 .top = side(whole[2], 0, width),
                 .bottom = side(whole[3], 0, width)};
    }
    const bool isEmpty =
        strut.left.depth == 0 && strut.right.depth == 0 && strut.top.depth == 0 && strut.bottom.depth == 0;
    return isEmpty ? std::nullopt : std::optional(strut);
}

std::array<quint32, 12> Strut::toProperty() const {
    const auto number = [](int value) { return static_cast<quint32>(value); };
    return {number(left.depth), number(right.depth), number(top.depth),    number(bottom.depth),
            number(left.first), number(left.last),   number(right.first),  number(right.last),
            number(top.first),  number(top.last),    number(bottom.first), number(bottom.last)};
}

QRect workArea(const QRect& display, const QList<Strut>& struts, QSize desktop) {
    QRect area = display;
    const auto keepOff = [&](const QRect& reserved, auto cut) {
        const QRect taken = reserved & display;
        // One that takes all of a display means another display's edge.
        if (taken.isEmpty() || taken == display)
            return;
        QRect rest = area;
        cut(rest, taken);
        if (!rest.isEmpty())
            area = rest;
    };
    for (const Strut& strut : struts) {
        const auto& [left, right, top, bottom] = strut;
        keepOff({QPoint(0, left.first), QPoint(left.depth - 1, left.last)},
                [](QRect& rest, const QRect& taken) { rest.setLeft(std::max(rest.left(), taken.right() + 1)); });
        keepOff({QPoint(desktop.width() - right.depth, right.first), QPoint(desktop.width() - 1, right.last)},
                [](QRect& rest, const QRect& taken) { rest.setRight(std::min(rest.right(), taken.left() - 1)); });
        keepOff({QPoint(top.first, 0), QPoint(top.last, top.depth - 1)},
                [](QRect& rest, const QRect& taken) { rest.setTop(std::max(rest.top(), taken.bottom() + 1)); });
        keepOff({QPoint(bottom.first, desktop.height() - bottom.depth), QPoint(bottom.last, desktop.height() - 1)},
                [](QRect& rest, const QRect& taken) { rest.setBottom(std::min(rest.bottom(), taken.top() - 1)); });
    }
    return area;
}

std::optional<Strut> strutFor(Qt::Edge edge, const QRect& display, const QRect& area, const QList<QRect>& displays,
                              QSize desktop) {
    const QRect strip = area & display;
    if (strip.isEmpty())
        return {};
    Strut strut;
    QRect beyond = strip; // from the strip to the desktop's edge
    switch (edge) {
    case Qt::LeftEdge:
        strut.left = {.depth = strip.right() + 1, .first = strip.top(), .last = strip.bottom()};
        beyond.setLeft(0);
        break;
    case Qt::RightEdge:
        strut.right = {.depth = desktop.width() - strip.left(), .first = strip.top(), .last = strip.bottom()};
        beyond.setRight(desktop.width() - 1);
        break;
    case Qt::TopEdge:
        strut.top = {.depth = strip.bottom() + 1, .first = strip.left(), .last = strip.right()};
        beyond.setTop(0);
        break;
    case Qt::BottomEdge:
        strut.bottom = {.depth = desktop.height() - strip.top(), .first = strip.left(), .last = strip.right()};
        beyond.setBottom(desktop.height() - 1);
        break;
    }
    const bool isInner =
        std::ranges::any_of(displays, [&](const QRect& other) { return other != display && other.intersects(beyond); });
    return isInner ? std::nullopt : std::optional(strut);
}

} // namespace fendrel
