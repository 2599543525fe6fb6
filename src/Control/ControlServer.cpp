#include "Control/ControlServer.h"

#include "App/AppController.h"
#include "Base/Log.h"
#include "Control/Protocol.h"
#include "Control/Status.h"

#include <utility>

namespace fendrel::control {

using namespace Qt::StringLiterals;

ControlServer::ControlServer(AppController& controller, const QString& dataFolder)
    : m_controller(controller),
      m_path(socketPath(dataFolder)),
      m_handlers(controller),
      m_server(controller.platform().isPeerOwnUser) {
    m_server.onLines = [this](LineServer::ConnectionID client, const QList<QByteArray>& lines) {
        for (const QByteArray& line : lines)
            handle(client, line);
    };
    m_server.onGone = [this](LineServer::ConnectionID client) { m_watchers.erase(client); };
    // Anything that the status shows may have changed with any of these.
    connect(&controller.engine(), &ModeEngine::changed, this, &ControlServer::scheduleReport);
    connect(&controller.focus(), &FocusSession::changed, this, &ControlServer::scheduleReport);
    connect(&controller.titles(), &WindowTitles::changed, this, &ControlServer::scheduleReport);
    connect(&controller.classifier(), &Classifier::changed, this, &ControlServer::scheduleReport);
    connect(&controller.bridge(), &BrowserBridge::changed, this, &ControlServer::scheduleReport);
    connect(&controller.drift().sites(), &SiteDrift::changed, this, &ControlServer::scheduleReport);
    connect(&controller.gate(), &Gate::changed, this, &ControlServer::scheduleReport);
    connect(&controller.messages(), &HeldMessages::changed, this, &ControlServer::scheduleReport);
    connect(&controller.budget(), &DriftBudget::changed, this, &ControlServer::scheduleReport);
    connect(&controller.replacement(), &DockReplacement::changed, this, &ControlServer::scheduleReport);
    connect(&controller.undo(), &DockUndo::changed, this, &ControlServer::scheduleReport);
    connect(&controller.suggestions(), &ModeSuggestions::changed, this, &ControlServer::scheduleReport);
    connect(&controller.context(), &ModeContext::changed, this, &ControlServer::scheduleReport);
    connect(&controller, &AppController::dockVisibilityChanged, this, &ControlServer::scheduleReport);
    connect(&controller, &AppController::onboardingChanged, this, &ControlServer::scheduleReport);
}

bool ControlServer::listen() {
    const QString problem = m_server.listen(m_path);
    if (!problem.isEmpty())
        qCWarning(logControl).noquote() << "No control socket at" << m_path + u":"_s << problem;
    return problem.isEmpty();
}

void ControlServer::handle(LineServer::ConnectionID client, const QByteArray& line) {
    const auto request = decodeRequest(line);
    if (!request) {
        m_server.send(client, encode(error(u"that is no request"_s)));
        return;
    }
    if (command(request->command)->isStream) {
        startWatching(client);
        return;
    }
    m_handlers.run(*request, [this, client](const CommandHandlers::Answer& answer) {
        // What the command changed is told before its answer: whoever sent it knows that the stream is complete by
        // then.
        report();
        m_server.send(client, encode(answer ? result(*answer) : error(answer.error())));
    });
}

void ControlServer::startWatching(LineServer::ConnectionID client) {
    report();
    m_reported = status(m_controller, StatusForm::marker);
    m_watchers.insert(client);
    QJsonObject whole = status(m_controller);
    whole.insert(u"time"_s, toDateTime(m_controller.platform().clock->now()).toString(Qt::ISODateWithMs));
    m_server.send(client, encode(whole));
}

void ControlServer::scheduleReport() {
    if (m_watchers.empty() || std::exchange(m_isReportDue, true))
        return;
    // Once for all that one event changes.
    QMetaObject::invokeMethod(this, &ControlServer::report, Qt::QueuedConnection);
}

void ControlServer::report() {
    if (!std::exchange(m_isReportDue, false))
        return;
    const QJsonObject marker = status(m_controller, StatusForm::marker);
    const QJsonObject shown = status(m_controller);
    QJsonObject line;
    for (auto member = marker.begin(); member != marker.end(); ++member) {
        if (m_reported[member.key()] != member.value())
            line.insert(member.key(), shown[member.key()]);
    }
    m_reported = marker;
    if (line.isEmpty())
        return;
    line.insert(u"time"_s, toDateTime(m_controller.platform().clock->now()).toString(Qt::ISODateWithMs));
    const QByteArray bytes = encode(line);
    for (const LineServer::ConnectionID client : m_watchers)
        m_server.send(client, bytes);
}

} // namespace fendrel::control
