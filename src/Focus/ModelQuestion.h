#pragma once

#include "Focus/Judgement.h"
#include "Modes/Mode.h"
#include "Ports/LanguageModel.h"

#include <functional>

/// The question "to which mode does this belong?" for a language model, and the reading of its answer.
namespace fendrel::ModelQuestion {

QString instructions(const QList<Mode>& modes, const std::function<QString(const QString& bundleID)>& appName);
QString prompt(const Subject& subject);
QList<SchemaProperty> schema(const QStringList& modeIDs);

/// An answer that names none of the modes names no mode; a certainty that nobody knows is unsure.
Verdict verdict(const LanguageModel::Answer& answer, const QStringList& modeIDs);

} // namespace fendrel::ModelQuestion
