#pragma once

#include "App/Capabilities.h"
#include "Ports/Displays.h"

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

namespace fendrel {

/// What a report on a problem is made of.
struct DiagnosticFacts {
    QJsonObject system{}; ///< versions and the kind of desktop
    QList<Display> displays{};
    QList<Capability> capabilities{};
    QJsonObject settings{};
    QStringList log{};
    QStringList crashReports{}; ///< names of files
    QStringList privateTexts{}; ///< what must not be in it, wherever it came from
};

/// The files of a report, by name. It tells how Fendrel is set up and what went wrong, but nothing of what its user
/// does: of the settings only those that are named here, of the capabilities no reasons, of the log no private text.
QMap<QString, QByteArray> diagnosticFiles(const DiagnosticFacts& facts);

/// Gathers the facts of this run. Main thread.
DiagnosticFacts diagnosticFacts(AppController& controller, const QList<Capability>& capabilities);

} // namespace fendrel
