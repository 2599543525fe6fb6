#pragma once

#include "Platform/Shared/AtNextTurn.h"
#include "Ports/Shell.h"

#include <utility>
#include <vector>

namespace fendrel {

class NullShell final : public Shell {
public:
    void openAddress(const QUrl&) override {}
    void reveal(const QStringList&) override {}
    void composeMail(const Mail&, std::function<void(bool isTaken)> done) override {
        m_answers.push_back(atNextTurn([done = std::move(done)] { done(false); }));
    }

private:
    std::vector<Handle> m_answers;
};

} // namespace fendrel
