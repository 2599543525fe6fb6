#include "Platform/Linux/Documents/RecentFiles.h"

#include <QDateTime>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

QStringList recentFiles(const QByteArray& list) {
    struct Use {
        QString path;
        QDateTime date;
    };
    QList<Use> uses;
    QXmlStreamReader reader(list);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != "bookmark"_L1)
            continue;
        const QUrl address(reader.attributes().value("href"_L1).toString());
        const auto date = QDateTime::fromString(reader.attributes().value("modified"_L1).toString(), Qt::ISODate);
        if (address.isLocalFile())
            uses.append({.path = address.toLocalFile(), .date = date});
    }
    std::ranges::stable_sort(uses, std::ranges::greater{}, &Use::date);
    QStringList paths;
    for (const Use& use : uses)
        paths.append(use.path);
    return paths;
}

} // namespace fendrel
