#include "Platform/Linux/ModelServer/ModelServer.h"

#include "Base/Log.h"
#include "Platform/Linux/ModelServer/ModelServerReply.h"

#include <QCoreApplication>

#include <utility>

namespace fendrel {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr auto lookInterval = 30s, lookTolerance = 10s;
constexpr auto questionTimeout = 20s;

QString beingLookedFor() {
    return QCoreApplication::translate("ModelServer", "A language model server on this machine is being looked for.");
}

} // namespace

QStringList ModelServer::usualAddresses() {
    return {u"localhost:8080"_s, u"localhost:11434"_s, u"localhost:1234"_s};
}

ModelServer::ModelServer(Clock& clock, QStringList usualAddresses)
    : m_clock(clock),
      m_usualAddresses(std::move(usualAddresses)),
      m_http(clock),
      m_reason(beingLookedFor()),
      // Not at once: the choice comes first, and with it no other server is spoken to. What the user sees comes first,
      // too.
      m_firstLook(clock.after(1s, [this] { look(); })),
      m_looks(clock.every(lookInterval, lookTolerance,
                          [this] {
                              // One that is at work may answer nothing else meanwhile.
                              if (!m_questions.isAsking())
                                  look();
                          })),
      m_questions(
          [this](const Question& question, Answered answered) { return askNow(question, std::move(answered)); }) {}

ModelServer::~ModelServer() = default;

void ModelServer::choose(const ModelChoice& choice) {
    if (choice == m_choice)
        return;
    m_choice = choice;
    m_prewarming.reset();
    m_server.reset(); // nothing more goes to a server that the user has left
    if (m_firstLook)
        return;
    look();
    if (m_search)
        setUnavailable(beingLookedFor());
}

void ModelServer::look() {
    m_firstLook.reset();
    const bool isChosen = !m_choice.server.isEmpty();
    QList<LocalHttpAddress> addresses;
    if (m_server && !isChosen)
        addresses.append(m_server->address); // as long as it is there, nobody else is disturbed
    for (const QString& text : isChosen ? QStringList{m_choice.server} : m_usualAddresses) {
        const auto address = LocalHttpAddress::parse(text);
        if (!address) {
            m_search.reset();
            setUnavailable(address.error());
            return;
        }
        addresses.append(*address);
    }
    m_search = std::make_unique<ModelServerSearch>(m_http, addresses, m_choice.model,
                                                   [this](const auto& found) { looked(found); });
}

void ModelServer::looked(const ModelServerSearch::Found& found) {
    const auto ended = std::move(m_search); // until this returns
    if (!found) {
        setUnavailable(found.error());
        return;
    }
    const bool wasAvailable = m_server.has_value();
    m_server = *found;
    m_reason.clear();
    if (!wasAvailable) {
        qCInfo(logApp).noquote() << "Language model" << m_server->model << "at" << m_server->address.name;
        onAvailabilityChanged();
    }
}

void ModelServer::setUnavailable(const QString& reason) {
    m_server.reset();
    if (reason == m_reason)
        return;
    m_reason = reason;
    qCInfo(logApp).noquote() << "No language model:" << reason;
    onAvailabilityChanged();
}

void ModelServer::prewarm(const Question& question) {
    m_prewarming.reset();
    if (!m_server)
        return;
    m_prewarmed = question.instructions;
    m_prewarming = m_http.send({.endpoint = m_server->address.endpoints.first(),
                                .path = ModelServerRequest::path(m_server->protocol),
                                .body = ModelServerRequest::prewarming(m_server->protocol, m_server->model, question),
                                .timeout = 120s}, // the model may have to be read from the disk first
                               [](const auto&) {});
}

Handle ModelServer::ask(const Question& question, Answered answered) {
    return m_questions.add(question, std::move(answered));
}

Handle ModelServer::askNow(const Question& question, Answered answered) {
    if (!m_server) {
        return m_clock.after({}, [reason = m_reason, answered = std::move(answered)] {
            answered(Result<Answer, QString>::failure(reason));
        });
    }
    // A prewarming of the same instructions does this question's own work; any other one is in its way.
    if (question.instructions != m_prewarmed)
        m_prewarming.reset();
    const ModelProtocol protocol = m_server->protocol;
    const LocalHttpRequest request{.endpoint = m_server->address.endpoints.first(),
                                   .path = ModelServerRequest::path(protocol),
                                   .body = ModelServerRequest::question(protocol, m_server->model, question),
                                   .timeout = questionTimeout};
    return m_http.send(request, [this, protocol, schema = question.schema,
                                 answered = std::move(answered)](const LocalHttp::Outcome& outcome) {
        if (outcome && outcome->status == 200) {
            answered(ModelServerReply::read(protocol, outcome->body, schema));
            return;
        }
        // It may be gone, be loading again, or have lost the model. That is seen before the next question goes out.
        if (outcome || outcome.error().kind == HttpError::Kind::unreachable)
            look();
        answered(Result<Answer, QString>::failure(outcome ? u"the server answered with status %1"_s.arg(outcome->status)
                                                          : outcome.error().detail));
    });
}

} // namespace fendrel
