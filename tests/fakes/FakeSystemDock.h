#pragma once

#include "Ports/SystemDock.h"

#include <QStringList>

#include <memory>
#include <utility>

namespace fendrel {

/// One dock whose settings are a value. Answers wait until the test lets them through.
class FakeSystemDock final : public SystemDock {
public:
    std::optional<QString> running() const override { return current; }
    QString name(const QString& dock) const override { return dock; }
    QList<Qt::Edge> edges() const override { return {Qt::BottomEdge}; }

    Handle read(const QString& dock, ReadDone done) override {
        return answerLater([this, dock, done = std::move(done)] {
            if (dock != settings.dock)
                done(std::nullopt);
            else
                done(settings);
        });
    }
    Handle write(const SystemDockSettings& wanted, WriteDone done) override {
        if (wanted.dock != settings.dock) // that one is gone
            return answerLater([done = std::move(done)] { done(false); });
        settings = wanted;
        const bool hides = wanted.autohide == true && wanted.delay == 1000.0;
        log.append(hides ? QStringLiteral("hide") : QStringLiteral("give back"));
        return answerLater([done = std::move(done)] { done(true); });
    }
    void restart(const QString&) override { log.append(QStringLiteral("restart")); }

    void answerOne() {
        if (const auto answer = std::exchange(*m_pending.takeFirst(), {}))
            answer();
    }
    void answerAll() {
        while (!m_pending.isEmpty())
            answerOne();
    }
    bool isAsked() const { return !m_pending.isEmpty(); }

    std::optional<QString> current = QStringLiteral("dock");
    SystemDockSettings settings{.dock = QStringLiteral("dock")};
    QStringList log; ///< in order: "hide", "give back", "restart"

private:
    using Answer = std::shared_ptr<std::function<void()>>;

    Handle answerLater(std::function<void()> answer) {
        const auto pending = std::make_shared<std::function<void()>>(std::move(answer));
        m_pending.append(pending);
        return Handle([pending] { *pending = nullptr; });
    }

    QList<Answer> m_pending;
};

} // namespace fendrel
