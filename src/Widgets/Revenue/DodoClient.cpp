#include "Widgets/Revenue/DodoClient.h"

#include <QSet>

#include <utility>

namespace fendrel::dodo {

using namespace Qt::StringLiterals;

namespace {

constexpr int pageLimit = 10;
constexpr int lookupsAtOnce = 4;

template<class Item, class Request, class Read>
Handle fetchPages(HttpClient& http, const Request& request, const Read& read, FetchDone<revenue::Listed<Item>> done) {
    return revenue::Pages<Item>::fetch(
        http, request(0), pageLimit,
        [request, read](const HttpResponse& response, int position) { return read(response, request(position + 1)); },
        std::move(done));
}

} // namespace

/// One fetch, step after step.
class Client::Day {
public:
    Day(HttpClient& http, std::shared_ptr<Settlements> settlements, QString key, WallTime since,
        FetchDone<revenue::Listed<Sale>> done)
        : m_http(http),
          m_settlements(std::move(settlements)),
          m_key(std::move(key)),
          m_since(since),
          m_done(std::move(done)) {}

    void askPayments() {
        m_lists = fetchPages<Payment>(
            m_http, [this](int page) { return paymentsRequest(m_key, m_mode, m_since, page); }, readPayments,
            [this](const auto& fetched) {
                if (!fetched)
                    return fail(fetched.error());
                m_payments = fetched->items;
                m_isCut = fetched->isCut;
                askRefunds();
            });
    }

    void cancel() {
        m_lists.reset();
        m_lookups.clear();
    }

private:
    void askRefunds() {
        m_lists = fetchPages<Refund>(
            m_http, [this](int page) { return refundsRequest(m_key, m_mode, m_since, page); }, readRefunds,
            [this](const auto& fetched) {
                if (!fetched)
                    return fail(fetched.error());
                m_refunds = fetched->items;
                m_isCut = m_isCut || fetched->isCut;
                askSettlements();
            });
    }

    /// A key of the test mode is one that the live host doesn't know.
    void fail(const FetchFailure& failure) {
        if (m_mode == Mode::live && failure == FetchFailure::told(refusedKey(u"Dodo Payments"_s))) {
            m_mode = Mode::test;
            return askPayments();
        }
        const auto done = std::move(m_done); // it may drop the handle, and this object with it
        done(Fetched<revenue::Listed<Sale>>::failure(failure));
    }

    void askSettlements() {
        QSet<QString> ids;
        for (const Payment& payment : m_payments)
            ids.insert(payment.id);
        for (const Refund& refund : m_refunds)
            ids.insert(refund.paymentId);
        for (const QString& id : ids)
            if (!m_settlements->contains(id) && settlementRequest(m_key, m_mode, id))
                m_unsettled.append(id);
        lookUp();
    }

    void lookUp() {
        while (!m_unsettled.isEmpty() && m_underWay < lookupsAtOnce) {
            const QString id = m_unsettled.takeLast();
            ++m_underWay;
            m_lookups[id] = m_http.send(*settlementRequest(m_key, m_mode, id), [this, id](const auto& outcome) {
                --m_underWay;
                if (outcome && (outcome->status == 200 || outcome->status == 404))
                    m_settlements->insert(id, readSettlement(*outcome));
                else
                    m_unsettled.clear(); // it is not the time for more questions; the next fetch asks them
                lookUp();
            });
        }
        if (m_underWay > 0)
            return;
        const auto done = std::move(m_done);
        done(revenue::Listed<Sale>{.items = sales(m_payments, m_refunds, *m_settlements), .isCut = m_isCut});
    }

    HttpClient& m_http;
    std::shared_ptr<Settlements> m_settlements;
    QString m_key;
    WallTime m_since;
    FetchDone<revenue::Listed<Sale>> m_done;
    Mode m_mode = Mode::live;
    QList<Payment> m_payments;
    QList<Refund> m_refunds;
    bool m_isCut = false;
    QStringList m_unsettled;
    int m_underWay = 0;
    Handle m_lists;
    std::map<QString, Handle> m_lookups;
};

Handle Client::fetch(const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done) {
    const auto day = std::make_shared<Day>(m_http, m_settlements, key, since, std::move(done));
    day->askPayments();
    return Handle([day] { day->cancel(); });
}

} // namespace fendrel::dodo
