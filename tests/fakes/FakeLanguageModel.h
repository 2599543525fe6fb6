#pragma once

#include "Ports/LanguageModel.h"

#include <map>
#include <memory>
#include <utility>

namespace fendrel {

/// Answers only when told to, oldest question first.
class FakeLanguageModel final : public LanguageModel {
public:
    using Outcome = Result<Answer, QString>;

    bool isAvailable() const override { return m_reason.isEmpty(); }
    QString unavailableReason() const override { return m_reason; }
    void prewarm(const Question& question) override { prewarmed.append(question.instructions); }
    Handle ask(const Question& question, Answered answered) override {
        questions.append(question);
        m_waiting->emplace(questions.size(), std::move(answered));
        return Handle([waiting = std::weak_ptr(m_waiting), id = questions.size()] {
            if (const auto alive = waiting.lock())
                alive->erase(id);
        });
    }

    /// An empty reason makes the model available.
    void setUnavailable(const QString& reason) {
        m_reason = reason;
        onAvailabilityChanged();
    }
    /// Returns false when no question waits.
    bool answerNext(const Outcome& outcome) {
        if (m_waiting->empty())
            return false;
        m_waiting->extract(m_waiting->begin()).mapped()(outcome);
        return true;
    }
    std::size_t waiting() const { return m_waiting->size(); }

    QList<Question> questions;
    QStringList prewarmed;

private:
    QString m_reason;
    std::shared_ptr<std::map<qsizetype, Answered>> m_waiting = std::make_shared<std::map<qsizetype, Answered>>();
};

} // namespace fendrel
