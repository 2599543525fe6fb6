#include "Platform/Linux/Tables/DataTable.h"

#include <QFile>

// Resources of a static library are only there once somebody asked for them, outside any namespace.
static void initializeResources() {
    Q_INIT_RESOURCE(PlatformTables);
}

namespace fendrel {

using namespace Qt::StringLiterals;

QJsonDocument dataTable(const QString& name) {
    initializeResources();
    QFile file(u":/platform/%1.json"_s.arg(name));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()) : QJsonDocument();
}

} // namespace fendrel
