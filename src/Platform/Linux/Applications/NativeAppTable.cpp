#include "Platform/Linux/Applications/NativeAppTable.h"

#include "Platform/Linux/Tables/DataTable.h"

#include <QJsonArray>
#include <QJsonObject>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QStringList texts(const QJsonValue& value) {
    QStringList texts;
    for (const auto each : value.toArray())
        texts.append(each.toString());
    return texts;
}

} // namespace

NativeApps nativeAppTable() {
    const QJsonObject table = dataTable(u"NativeApps"_s).object();
    const QStringList shared = texts(table[u"shared"]);
    NativeApps apps{.shared = {shared.begin(), shared.end()}, .byTemplate = {}};
    const QJsonObject templates = table[u"templates"].toObject();
    for (auto each = templates.begin(); each != templates.end(); ++each)
        apps.byTemplate.insert(each.key(), texts(each.value()));
    return apps;
}

} // namespace fendrel
