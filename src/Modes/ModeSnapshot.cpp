#include "Modes/ModeSnapshot.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostPages = 30;

QByteArray json(const QJsonValue& value) {
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

// Put together by hand: a Qt JSON object sorts its members, and people look into the file.
QByteArray object(const QList<std::pair<const char*, QByteArray>>& members) {
    QByteArrayList parts;
    for (const auto& [name, value] : members)
        parts.append('"' + QByteArray(name) + "\":" + value);
    return '{' + parts.join(',') + '}';
}

template<class Item, class Encode>
QByteArray array(const QList<Item>& items, Encode encode) {
    QByteArrayList parts;
    std::ranges::transform(items, std::back_inserter(parts), encode);
    return '[' + parts.join(',') + ']';
}

QByteArray encode(const ModeSnapshot& snapshot) {
    const auto page = [](const auto& each) { return object({{"url", json(each.url)}, {"title", json(each.title)}}); };
    const auto document = [](const auto& each) {
        return object({{"bundleID", json(each.bundleID)}, {"url", json(each.url)}});
    };
    QList<std::pair<const char*, QByteArray>> members{
        {"modeID", json(snapshot.modeID)},
        {"savedAt", json(toDateTime(snapshot.savedAt).toString(Qt::ISODateWithMs))},
        {"apps", json(QJsonArray::fromStringList(snapshot.apps))},
        {"titles", json(QJsonArray::fromStringList(snapshot.titles))},
        {"pages", array(snapshot.pages, page)},
        {"documents", array(snapshot.documents, document)}};
    if (snapshot.note)
        members.append({"note", json(*snapshot.note)});
    return object(members);
}

QStringList texts(const QJsonValue& value) {
    QStringList found;
    for (const auto each : value.toArray()) {
        if (each.isString())
            found.append(each.toString());
    }
    return found;
}

} // namespace

void addPage(QList<ModeSnapshot::Page>& pages, const ModeSnapshot::Page& page) {
    QUrl url(page.url);
    if (!url.isValid() || url.host().isEmpty() || (url.scheme() != "https"_L1 && url.scheme() != "http"_L1))
        return;
    url.setUserInfo({});
    ModeSnapshot::Page seen{.url = url.toString(QUrl::FullyEncoded), .title = page.title.simplified()};
    const auto before = std::ranges::find(pages, seen.url, &ModeSnapshot::Page::url);
    if (before != pages.end()) {
        if (seen.title.isEmpty())
            seen.title = before->title;
        pages.erase(before);
    }
    pages.prepend(seen);
    if (pages.size() > mostPages)
        pages.resize(mostPages);
}

QByteArray encode(const ModeSnapshots& snapshots) {
    QStringList ids = snapshots.keys();
    ids.sort();
    const auto member = [&](const QString& id) { return json(id) + ':' + encode(snapshots[id]); };
    QByteArrayList parts;
    std::ranges::transform(ids, std::back_inserter(parts), member);
    return '{' + parts.join(",\n") + '}';
}

ModeSnapshots decodeSnapshots(const QJsonObject& object) {
    ModeSnapshots snapshots;
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QJsonObject stored = member->toObject();
        const auto savedAt = QDateTime::fromString(stored[u"savedAt"].toString(), Qt::ISODateWithMs);
        if (!savedAt.isValid())
            continue;
        ModeSnapshot snapshot{.modeID = member.key(),
                              .savedAt = toWallTime(savedAt),
                              .apps = texts(stored[u"apps"]),
                              .titles = texts(stored[u"titles"])};
        const QJsonArray pages = stored[u"pages"].toArray();
        for (qsizetype index = pages.size(); index-- > 0;) { // each goes before those that are there
            const QJsonObject page = pages[index].toObject();
            addPage(snapshot.pages, {.url = page[u"url"].toString(), .title = page[u"title"].toString()});
        }
        for (const auto each : stored[u"documents"].toArray()) {
            const ModeSnapshot::Document document{.bundleID = each.toObject()[u"bundleID"].toString(),
                                                  .url = each.toObject()[u"url"].toString()};
            if (!document.bundleID.isEmpty() && QUrl(document.url).isLocalFile())
                snapshot.documents.append(document);
        }
        if (const QJsonValue note = stored[u"note"]; note.isString())
            snapshot.note = note.toString();
        snapshots.insert(member.key(), snapshot);
    }
    return snapshots;
}

} // namespace fendrel
