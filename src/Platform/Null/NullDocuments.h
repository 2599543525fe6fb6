#pragma once

#include "Platform/Shared/AtNextTurn.h"
#include "Ports/Documents.h"

#include <utility>

namespace fendrel {

class NullDocuments final : public Documents {
public:
    Handle find(const QList<DocumentOwner>&, Found done) override {
        return atNextTurn([done = std::move(done)] { done({}); });
    }
    Handle findGone(const QList<QUrl>&, Gone done) override {
        return atNextTurn([done = std::move(done)] { done({}); });
    }
};

} // namespace fendrel
