#pragma once

#include "Ports/LanguageModel.h"
#include "fakes/OpenRequests.h"

#include <deque>
#include <utility>

namespace fendrel {

/// Answers only when told to, with what was prepared, oldest question first.
class FakeLanguageModel final : public LanguageModel {
public:
    using Outcome = Result<Answer, QString>;

    bool isAvailable() const override { return m_reason.isEmpty(); }
    QString unavailableReason() const override { return m_reason; }
    void prewarm(const QString& instructions) override { prewarmed.append(instructions); }
    Handle ask(const Question& question, Answered answered) override {
        questions.append(question);
        return m_open.add(std::move(answered));
    }

    /// An empty reason makes the model available.
    void setUnavailable(const QString& reason) {
        m_reason = reason;
        onAvailabilityChanged();
    }
    void prepare(Answer answer) { m_prepared.emplace_back(std::move(answer)); }
    void prepareFailure(const QString& reason) { m_prepared.push_back(Outcome::failure(reason)); }

    /// Returns false when no question waits or nothing is prepared.
    bool answerNext() {
        if (m_prepared.empty() || m_open.waiting() == 0)
            return false;
        const auto outcome = std::move(m_prepared.front());
        m_prepared.pop_front();
        return m_open.answerOldest(outcome);
    }
    int waiting() const { return m_open.waiting(); }
    int cancelled() const { return m_open.cancelled(); }

    QList<Question> questions;
    QStringList prewarmed;

private:
    QString m_reason;
    std::deque<Outcome> m_prepared;
    OpenRequests<Outcome> m_open;
};

} // namespace fendrel
