#pragma once

#include "Ports/SecretStore.h"

namespace fendrel {

/// The keyring's items that hold the keys of widgets, one for each account.
class Keychain {
public:
    explicit Keychain(SecretStore& store) : m_store(store) {}

    Handle read(const QString& account, std::function<void(const SecretStore::Secret&)> done) const;
    Handle save(const QString& value, const QString& account, SecretStore::Done done) const;
    Handle remove(const QString& account, SecretStore::Done done) const;
    Handle unlock(SecretStore::Done done) const { return m_store.unlock(std::move(done)); }

private:
    SecretStore& m_store;
};

} // namespace fendrel
