#include "Messages/NotificationContent.h"

#include "Base/PropertyList.h"

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QString string(const QVariantMap& map, const QString& key) {
    const QVariant value = map.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

} // namespace

std::optional<NotificationContent> request(QByteArrayView data) {
    const auto list = propertyList::read(data);
    if (!list || list->typeId() != QMetaType::QVariantMap)
        return {};
    const QVariantMap record = list->toMap();
    const QVariantMap request = record.value(u"req"_s).toMap();
    NotificationContent content{.title = string(request, u"titl"_s),
                                .subtitle = string(request, u"subt"_s),
                                .body = string(request, u"body"_s),
                                .isCritical = record.value(u"crit"_s) == QVariant(true)};
    if (content.title.isEmpty() && content.body.isEmpty())
        return {};
    return content;
}

} // namespace fendrel
