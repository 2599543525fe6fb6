#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace fendrel {

class AppController;

namespace control {

/// What the status says of messages: how many are held for each mode, the alert, the digest, why nothing can be read.
QJsonObject messagesObject(AppController& controller);

/// The newest messages that are held for a mode, newest first; long texts are cut.
QJsonArray heldFor(AppController& controller, const QString& modeID);

} // namespace control
} // namespace fendrel
