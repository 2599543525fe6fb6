#pragma once

#include "Base/Handle.h"
#include "Base/Result.h"
#include "Control/Commands.h"

#include <QHash>
#include <QJsonValue>

#include <functional>
#include <map>

namespace fendrel {

class AppController;

namespace control {

/// What the commands do to the application. A failure is one line for the user.
class CommandHandlers {
public:
    explicit CommandHandlers(AppController& controller);

    using Answer = Result<QJsonValue, QString>;
    using Answered = std::function<void(const Answer&)>;

    /// Answers during the call, or later what waits for the disk; never after the handlers are gone.
    void run(const Request& request, Answered answered);
    QStringList names() const { return m_handlers.keys() + m_lateHandlers.keys(); }

private:
    using Handler = std::function<Answer(const Request&)>;
    using LateHandler = std::function<Handle(const Request&, Answered)>;

    Answer modes() const;
    Answer switchMode(const QString& id);
    Answer startFocus(const Request& request);
    Answer skipTime(const QString& text); ///< only where time travel is built in
    Answer answerGate(const QString& answer);
    Answer answerAlert(const QString& answer);
    Answer correct(const QString& mode);
    Answer replaceDock(const QString& wish);
    Answer withMode(const QString& id, const std::function<Answer(const QString& id)>& edit);
    Answer getSetting(const QString& name) const;
    Answer setSetting(const QString& name, const QString& text);
    Answer openSettings(const QString& pane);
    Answer finishOnboarding(const QStringList& templates);
    Handle exportTo(const Request& request, Answered answered);
    Handle importFrom(const Request& request, Answered answered);

    AppController& m_controller;
    QHash<QString, Handler> m_handlers;
    QHash<QString, LateHandler> m_lateHandlers;
    std::map<quint64, Handle> m_underWay; ///< by number
    quint64 m_lastNumber = 0;
};

} // namespace control
} // namespace fendrel
