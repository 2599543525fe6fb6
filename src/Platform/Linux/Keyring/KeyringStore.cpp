#include "Platform/Linux/Keyring/KeyringStore.h"

#include "Base/OnWorker.h"

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

KeyringStore::~KeyringStore() {
    m_patience.end(); // the thread is waited for, and must not wait for anybody meanwhile
}

template<class Answer>
Handle KeyringStore::post(std::function<Answer()> work, std::function<void(const Answer&)> done) {
    if (!m_worker)
        m_worker.emplace(u"keyring"_s);
    return onWorker(*m_worker, std::move(work), std::move(done));
}

Handle KeyringStore::read(const Item& item, std::function<void(const Secret&)> done) {
    return post<Secret>([item, patience = m_patience] { return keyring::read(item, patience); }, std::move(done));
}

Handle KeyringStore::save(const Item& item, const QString& label, const QString& secret, Done done) {
    return post<std::optional<Problem>>(
        [item, label, secret, patience = m_patience] { return keyring::save(item, label, secret, patience); },
        std::move(done));
}

Handle KeyringStore::remove(const Item& item, Done done) {
    return post<std::optional<Problem>>([item, patience = m_patience] { return keyring::remove(item, patience); },
                                        std::move(done));
}

Handle KeyringStore::unlock(Done done) {
    return post<std::optional<Problem>>([patience = m_patience] { return keyring::unlock(patience); }, std::move(done));
}

} // namespace fendrel
