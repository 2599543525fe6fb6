#include "Widgets/Keychain.h"

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

SecretStore::Item item(const QString& account) {
    return {.service = u"org.fendrel.Fendrel.widgets"_s, .account = account};
}

} // namespace

Handle Keychain::read(const QString& account, std::function<void(const SecretStore::Secret&)> done) const {
    return m_store.read(item(account), std::move(done));
}

Handle Keychain::save(const QString& value, const QString& account, SecretStore::Done done) const {
    return m_store.save(item(account), u"Fendrel widget key"_s, value, std::move(done));
}

Handle Keychain::remove(const QString& account, SecretStore::Done done) const {
    return m_store.remove(item(account), std::move(done));
}

} // namespace fendrel
