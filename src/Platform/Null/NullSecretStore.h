#pragma once

#include "Platform/Shared/AtNextTurn.h"
#include "Ports/SecretStore.h"

#include <utility>

namespace fendrel {

class NullSecretStore final : public SecretStore {
public:
    Handle read(const Item&, std::function<void(const Secret&)> done) override {
        return atNextTurn([done = std::move(done)] { done(Secret::failure(Problem::missing)); });
    }
    Handle save(const Item&, const QString&, const QString&, Done done) override { return refuse(std::move(done)); }
    Handle remove(const Item&, Done done) override { return refuse(std::move(done)); }
    Handle unlock(Done done) override { return refuse(std::move(done)); }

private:
    static Handle refuse(Done done) {
        return atNextTurn([done = std::move(done)] { done(Problem::missing); });
    }
};

} // namespace fendrel
