#include "Platform/Linux/Calendar/CalendarPlaces.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 sizeLimit = 1 << 20;

QString plain(QString path, const QString& home) {
    if (path.startsWith("~/"_L1))
        path.replace(0, 1, home);
    path.replace("$HOME"_L1, home);
    static const QRegularExpression pattern(u"[*?%\\[]"_s);
    if (const auto at = path.indexOf(pattern); at >= 0)
        path = path.left(path.lastIndexOf(u'/', at));
    return QDir::cleanPath(path);
}

} // namespace

CalendarPlaces placesInSettings(const QString& text, const QString& home) {
    CalendarPlaces places;
    QString path;
    bool isOfContacts = false;
    const auto endSection = [&] {
        const QString found = plain(std::exchange(path, {}), home);
        if (!std::exchange(isOfContacts, false) && QDir::isAbsolutePath(found))
            places.paths.append(found);
    };
    static const QRegularExpression setting(uR"(^\s*(\w+)\s*=\s*(.*?)\s*$)"_s);
    static const QRegularExpression separators(u"[,\\s\\[\\]\"']+"_s);
    const QStringList lines = text.split(u'\n');
    for (const QString& line : lines) {
        if (line.trimmed().startsWith(u'['))
            endSection();
        const auto match = setting.match(line);
        const QString name = match.captured(1);
        const QStringList values = match.captured(2).split(separators, Qt::SkipEmptyParts);
        if (name == "path"_L1)
            path = match.captured(2).remove(u'"').remove(u'\'');
        else if (name == "fileext"_L1 || name == "type"_L1)
            isOfContacts |= values.value(0) == ".vcf"_L1 || values.value(0) == "birthdays"_L1;
        else if (name == "addresses"_L1 || name == "username"_L1)
            for (const QString& each : values)
                if (each.contains(u'@') && !places.addresses.contains(each.toLower()))
                    places.addresses.append(each.toLower());
    }
    endSection();
    places.paths.removeDuplicates();
    return places;
}

CalendarPlaces usualCalendarPlaces(const QString& home, const QString& configFolder, const QString& dataFolder) {
    CalendarPlaces places;
    for (const QString& path :
         {configFolder + u"/vdirsyncer/config"_s, home + u"/.vdirsyncer/config"_s, configFolder + u"/khal/config"_s,
          configFolder + u"/todoman/config.py"_s, configFolder + u"/todoman/todoman.conf"_s}) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const auto named = placesInSettings(QString::fromUtf8(file.read(sizeLimit)), home);
        places.paths += named.paths;
        places.addresses += named.addresses;
    }
    places.paths += {home + u"/.calendars"_s,       home + u"/.calendar"_s,
                     dataFolder + u"/calendars"_s,  dataFolder + u"/khal/calendars"_s,
                     dataFolder + u"/vdirsyncer"_s, dataFolder + u"/orage"_s,
                     dataFolder + u"/korganizer"_s, home + u"/.var/lib/radicale/collections"_s};
    QStringList kept;
    for (const QString& path : std::as_const(places.paths)) {
        const bool isInside = std::ranges::any_of(places.paths, [&path](const QString& other) {
            return path.startsWith(other + u'/') && QFileInfo::exists(other);
        });
        if (!isInside && !kept.contains(path) && QFileInfo::exists(path))
            kept.append(path);
    }
    places.paths = kept;
    places.addresses.removeDuplicates();
    return places;
}

} // namespace fendrel
