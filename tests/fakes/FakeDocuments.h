#pragma once

#include "Ports/Documents.h"

#include <memory>
#include <utility>

namespace fendrel {

/// Answers only when told to.
class FakeDocuments final : public Documents {
public:
    Handle find(const QList<DocumentOwner>& owners, Found done) override {
        asked.append(owners);
        *m_waiting = std::move(done);
        return Handle([waiting = m_waiting] { *waiting = {}; });
    }
    Handle findGone(const QList<QUrl>&, Gone done) override {
        *m_waitingForGone = std::move(done);
        return Handle([waiting = m_waitingForGone] { *waiting = {}; });
    }

    /// Whether anybody waited for it.
    bool answer(const QList<OpenDocument>& found) {
        const auto told = std::exchange(*m_waiting, {});
        if (told)
            told(found);
        return static_cast<bool>(told);
    }

    bool answerGone(const QList<QUrl>& gone) {
        const auto told = std::exchange(*m_waitingForGone, {});
        if (told)
            told(gone);
        return static_cast<bool>(told);
    }

    QList<QList<DocumentOwner>> asked;

private:
    std::shared_ptr<Found> m_waiting = std::make_shared<Found>(); ///< the latest question's
    std::shared_ptr<Gone> m_waitingForGone = std::make_shared<Gone>();
};

} // namespace fendrel
