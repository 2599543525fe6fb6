#pragma once

#include "Base/WallTime.h"
#include "Widgets/FetchFailure.h"

#include <QJsonArray>
#include <QJsonObject>

#include <utility>

namespace fendrel::revenue {

using Query = QList<std::pair<QString, QString>>;

HttpRequest get(const QUrl& url, const QString& key, const QByteArray& accept = "application/json");
/// Names and values are percent-encoded, as some servers take a bare "+" for a space.
QUrl address(const QString& base, const Query& query);
/// As servers everywhere understand it: in UTC, to the second.
QString isoTime(WallTime time);

/// A request to where an answer says that its next page is. Nothing where that isn't on the host that answered: no key
/// goes there.
std::optional<HttpRequest> following(const HttpRequest& request, const QJsonValue& address);

/// The object that an answer is, or what is wrong with it.
Fetched<QJsonObject> body(const HttpResponse& response, const QString& service);

FetchFailure badDate();

/// Reads each object of a list. `read(object, items)` adds what it finds, and is false when a date cannot be read: a
/// day's sum would be wrong without that item.
template<class Item, class Read>
Fetched<QList<Item>> readItems(const QJsonValue& list, const Read& read) {
    if (!list.isArray())
        return Fetched<QList<Item>>::failure(FetchFailure::undecodable());
    QList<Item> items;
    for (const auto& each : list.toArray())
        if (each.isObject() && !read(each.toObject(), items))
            return Fetched<QList<Item>>::failure(badDate());
    return items;
}

} // namespace fendrel::revenue
