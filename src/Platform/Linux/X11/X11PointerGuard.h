#pragma once

#include "Platform/Linux/X11/EdgeWatch.h"
#include "Platform/Linux/X11/X11Connection.h"
#include "Ports/PointerGuard.h"

namespace fendrel {

class X11PointerGuard final : public PointerGuard {
public:
    explicit X11PointerGuard(std::shared_ptr<X11Connection> connection) : m_connection(std::move(connection)) {}

    bool isAvailable() const override;
    bool start() override {
        if (!isRunning())
            m_watch = std::make_unique<EdgeWatch>(m_edges);
        return isRunning();
    }
    void stop() override { m_watch.reset(); }
    bool isRunning() const override { return m_watch && m_watch->isRunning(); }
    void setEdges(const QList<GuardedEdge>& edges) override {
        m_edges = edges;
        if (m_watch)
            m_watch->setEdges(edges);
    }

private:
    std::shared_ptr<X11Connection> m_connection;
    QList<GuardedEdge> m_edges;
    std::unique_ptr<EdgeWatch> m_watch; ///< here while it is started
};

} // namespace fendrel
