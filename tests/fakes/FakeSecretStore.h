#pragma once

#include "Ports/SecretStore.h"

#include <QHash>
#include <QStringList>

#include <list>
#include <memory>
#include <utility>

namespace fendrel {

/// Keeps secrets by account, and answers when told to.
class FakeSecretStore final : public SecretStore {
public:
    Handle read(const Item& item, std::function<void(const Secret&)> done) override {
        asked.append(u'r' + item.account);
        return later([this, item, done = std::move(done)] {
            const auto found = secrets.constFind(item.account);
            done(problem                       ? Secret::failure(*problem)
                 : found == secrets.constEnd() ? Secret(std::optional<QString>())
                                               : Secret(std::optional(*found)));
        });
    }
    Handle save(const Item& item, const QString& label, const QString& secret, Done done) override {
        asked.append(item.service + u' ' + item.account + u' ' + label);
        return later([this, item, secret, done = std::move(done)] {
            if (!problem)
                secrets[item.account] = secret;
            done(problem);
        });
    }
    Handle remove(const Item& item, Done done) override {
        return later([this, item, done = std::move(done)] {
            if (!problem)
                secrets.remove(item.account);
            done(problem);
        });
    }
    Handle unlock(Done done) override {
        return later([this, done = std::move(done)] {
            problem.reset();
            done({});
        });
    }

    /// Answers all that was asked, and what is asked meanwhile.
    void answer() {
        while (!m_waiting.empty()) {
            const auto [isWanted, run] = std::move(m_waiting.front());
            m_waiting.pop_front();
            if (*isWanted)
                run();
        }
    }

    QHash<QString, QString> secrets; ///< by account
    std::optional<Problem> problem;
    QStringList asked;

private:
    Handle later(std::function<void()> run) {
        const auto isWanted = std::make_shared<bool>(true);
        m_waiting.emplace_back(isWanted, std::move(run));
        return Handle([isWanted] { *isWanted = false; });
    }

    std::list<std::pair<std::shared_ptr<bool>, std::function<void()>>> m_waiting;
};

} // namespace fendrel
