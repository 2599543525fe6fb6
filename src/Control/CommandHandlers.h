#pragma once

#include "Base/Result.h"
#include "Control/Commands.h"

#include <QHash>
#include <QJsonValue>

#include <functional>

namespace fendrel {

class AppController;

namespace control {

/// What the commands do to the application. A failure is one line for the user.
class CommandHandlers {
public:
    explicit CommandHandlers(AppController& controller);

    Result<QJsonValue, QString> run(const Request& request);
    QStringList names() const { return m_handlers.keys(); }

private:
    using Answer = Result<QJsonValue, QString>;
    using Handler = std::function<Answer(const Request&)>;

    Answer modes() const;
    Answer switchMode(const QString& id);
    Answer startFocus(const Request& request);
    Answer answerGate(const QString& answer);
    Answer answerAlert(const QString& answer);
    Answer correct(const QString& mode);
    Answer replaceDock(const QString& wish);
    Answer withMode(const QString& id, const std::function<Answer(const QString& id)>& run);
    Answer getSetting(const QString& name) const;
    Answer setSetting(const QString& name, const QString& text);
    Answer openSettings(const QString& pane);
    Answer finishOnboarding(const QStringList& templates);

    AppController& m_controller;
    QHash<QString, Handler> m_handlers;
};

} // namespace control
} // namespace fendrel
