#pragma once

#include "Base/Worker.h"
#include "Platform/Linux/Keyring/Keyring.h"
#include "Ports/SecretStore.h"

#include <optional>

namespace fendrel {

/// The desktop's keyring, which is first looked for when something is asked of it. What is asked is done one after the
/// other on a thread of its own.
class KeyringStore final : public SecretStore {
public:
    KeyringStore() = default;
    ~KeyringStore() override;
    KeyringStore(const KeyringStore&) = delete;
    KeyringStore& operator=(const KeyringStore&) = delete;

    Handle read(const Item& item, std::function<void(const Secret&)> done) override;
    Handle save(const Item& item, const QString& label, const QString& secret, Done done) override;
    Handle remove(const Item& item, Done done) override;
    Handle unlock(Done done) override;

private:
    /// `work` runs there, `done` here with what it returned.
    template<class Answer>
    Handle post(std::function<Answer()> work, std::function<void(const Answer&)> done);

    KeyringPatience m_patience;
    std::optional<Worker> m_worker;
};

} // namespace fendrel
