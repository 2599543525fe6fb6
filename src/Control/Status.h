#pragma once

#include <QJsonObject>

namespace fendrel {

class AppController;

namespace control {

/// What goes on, one member for each concern. A marker holds what only changes when something happens, in place of the
/// times that pass by themselves, so that two markers of the same state are equal.
enum class StatusForm { shown, marker };
QJsonObject status(AppController& controller, StatusForm form = StatusForm::shown);

/// Why the thing in front was judged as it was: "subject", "verdict" and "because", a list of sentences.
QJsonObject explanation(AppController& controller);

} // namespace control
} // namespace fendrel
