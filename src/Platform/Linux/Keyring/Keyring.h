#pragma once

#include "Ports/SecretStore.h"

#include <memory>
#include <optional>

namespace fendrel {

/// Lets another thread put an end to every wait, for the service and for the user's password.
class KeyringPatience {
public:
    KeyringPatience();
    void end(); ///< from any thread, for good

    void* token() const { return m_token.get(); } ///< what the library is given

private:
    std::shared_ptr<void> m_token;
};

/// The session's keyring service. Every call waits for its answer, and all but `read` may wait for the user: for a
/// thread of its own.
namespace keyring {

SecretStore::Secret read(const SecretStore::Item& item, const KeyringPatience& patience);
std::optional<SecretStore::Problem> save(const SecretStore::Item& item, const QString& label, const QString& secret,
                                         const KeyringPatience& patience);
std::optional<SecretStore::Problem> remove(const SecretStore::Item& item, const KeyringPatience& patience);
std::optional<SecretStore::Problem> unlock(const KeyringPatience& patience);

} // namespace keyring
} // namespace fendrel
