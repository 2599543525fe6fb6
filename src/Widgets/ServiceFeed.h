#pragma once

#include "Widgets/Feed.h"
#include "Widgets/WidgetAccounts.h"

#include <utility>

namespace fendrel {

/// What one service says to the user's key. A failed fetch keeps what the last good one brought.
template<class Value>
class ServiceFeed final : public Feed {
public:
    /// Asks with the key, and answers once, later. Dropping the handle takes the question back.
    using Fetch = std::function<Handle(const QString& key, FetchDone<Value> done)>;

    ServiceFeed(WidgetAccounts::Service service, WidgetAccounts& accounts, Clock& clock, HttpClient& http,
                std::chrono::seconds interval, Fetch fetch)
        : Feed(clock, http, {.interval = interval}),
          m_service(service),
          m_accounts(accounts),
          m_fetch(std::move(fetch)) {}

    WidgetAccounts::Service service() const { return m_service; }
    bool isConnected() const { return m_accounts.connected().contains(m_service); }
    const std::optional<Value>& value() const { return m_value; }

protected:
    QString text(const FetchFailure& failure) const override {
        return message(failure, WidgetAccounts::description(m_service).name);
    }

    Handle fetch() override {
        return m_accounts.key(m_service, [this](const std::optional<QString>& key) {
            if (!key) {
                m_value.reset();
                clear();
            } else if (begin()) {
                hold(m_fetch(*key, [this](const Fetched<Value>& fetched) {
                    if (fetched)
                        m_value = *fetched;
                    fetched ? succeed() : fail(fetched.error());
                }));
            }
        });
    }

private:
    WidgetAccounts::Service m_service;
    WidgetAccounts& m_accounts;
    Fetch m_fetch;
    std::optional<Value> m_value;
};

} // namespace fendrel
