#pragma once

#include "Ports/Panels.h"

#include <QHash>
#include <QList>

namespace fendrel {

class FakePanels final : public Panels {
public:
    struct Panel {
        Kind kind{};
        Qt::Edge edge{};
        QRect display{};
        QRect reserved{};
        QRegion input{};
    };

    void prepare(quintptr window, Kind kind) override { panels[window].kind = kind; }
    void reserve(quintptr window, Qt::Edge edge, const QRect& display, const QRect& area) override {
        auto& panel = panels[window];
        panel.edge = edge;
        panel.display = display;
        panel.reserved = area;
    }
    void setInputRegion(quintptr window, const QRegion& region) override { panels[window].input = region; }
    void activate(quintptr window) override { activated.append(window); }
    bool hasTransparency() const override { return m_hasTransparency; }

    void setTransparency(bool hasTransparency) {
        m_hasTransparency = hasTransparency;
        onTransparencyChanged();
    }

    QHash<quintptr, Panel> panels; ///< by window
    QList<quintptr> activated;

private:
    bool m_hasTransparency = true;
};

} // namespace fendrel
