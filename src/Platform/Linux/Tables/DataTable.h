#pragma once

#include <QJsonDocument>
#include <QString>

namespace fendrel {

/// One of the tables that are built into the program, by its file's name without ".json".
QJsonDocument dataTable(const QString& name);

} // namespace fendrel
