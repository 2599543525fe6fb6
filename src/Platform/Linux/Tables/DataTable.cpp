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
    QJsonParseError error;
    const auto table = QJsonDocument::fromJson(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), &error);
    if (table.isNull())
        qFatal("The built-in table %s can't be read: %s", qUtf8Printable(name), qUtf8Printable(error.errorString()));
    return table;
}

} // namespace fendrel
