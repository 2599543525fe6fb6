#pragma once

#include "Widgets/FetchFailure.h"

#include <QList>

#include <memory>
#include <utility>

namespace fendrel::revenue {

/// A part of a list, and where the next one is.
template<class Item>
struct Page {
    QList<Item> items{};
    std::optional<HttpRequest> next{};
};

/// What its pages brought together.
template<class Item>
struct Listed {
    QList<Item> items{};
    bool isCut{}; ///< there is more than the limit allows to ask for
};

/// Follows a list from page to page, up to a limit: a server that always names one more page is not followed for ever.
template<class Item>
class Pages {
public:
    /// `position` counts the answers before this one.
    using Read = std::function<Fetched<Page<Item>>(const HttpResponse& response, int position)>;

    static Handle fetch(HttpClient& http, const HttpRequest& first, int limit, Read read,
                        FetchDone<Listed<Item>> done) {
        const auto pages = std::shared_ptr<Pages>(new Pages(http, limit, std::move(read), std::move(done)));
        pages->ask(first);
        return Handle([pages] { pages->m_request.reset(); });
    }

private:
    Pages(HttpClient& http, int limit, Read read, FetchDone<Listed<Item>> done)
        : m_http(http), m_limit(limit), m_read(std::move(read)), m_done(std::move(done)) {}

    void ask(const HttpRequest& request) {
        m_request = m_http.send(request, [this](const auto& outcome) { take(outcome); });
    }

    void take(const Result<HttpResponse, HttpError>& outcome) {
        const auto page =
            outcome ? m_read(*outcome, m_position) : Fetched<Page<Item>>::failure(failure(outcome.error()));
        if (page)
            m_listed.items.append(page->items);
        if (page && page->next && ++m_position < m_limit)
            return ask(*page->next);
        m_listed.isCut = page && page->next;
        const auto done = std::move(m_done); // it may drop the handle, and this object with it
        done(page ? Fetched<Listed<Item>>(std::move(m_listed)) : Fetched<Listed<Item>>::failure(page.error()));
    }

    HttpClient& m_http;
    int m_limit;
    Read m_read;
    FetchDone<Listed<Item>> m_done;
    Listed<Item> m_listed;
    int m_position = 0;
    Handle m_request;
};

} // namespace fendrel::revenue
