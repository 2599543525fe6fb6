#include "Platform/Linux/Calendar/EvolutionSources.h"

#include "Platform/Linux/Applications/KeyFile.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QMap>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

bool isOn(const KeyFile& file, const QString& group) {
    return file.value(group).value(u"Enabled"_s) != "false"_L1;
}

void addAddresses(const KeyFile& file, QStringList& addresses) {
    const QString all = file.value(u"Mail Identity"_s).value(u"Address"_s) + u';' +
                        file.value(u"Mail Identity"_s).value(u"Aliases"_s) + u';' +
                        file.value(u"Collection"_s).value(u"Identity"_s) + u';' +
                        file.value(u"Authentication"_s).value(u"User"_s);
    const QStringList single = all.toLower().split(u';');
    for (const QString& each : single)
        if (each.contains(u'@') && !addresses.contains(each.trimmed()))
            addresses.append(each.trimmed());
}

} // namespace

EvolutionSources EvolutionSources::read(const QMap<QString, QString>& data) {
    QMap<QString, KeyFile> files;
    for (const auto& [uid, text] : data.asKeyValueRange())
        files.insert(uid, parseKeyFile(text.toUtf8(), QStringList()));
    const QString main = u"Data Source"_s;
    // What belongs to an account is off with it.
    const auto isEnabled = [&](QString uid) {
        for (qsizetype steps = 0; steps <= files.size() && files.contains(uid); ++steps) {
            if (!isOn(files[uid], main))
                return false;
            uid = files[uid].value(main).value(u"Parent"_s);
        }
        return true;
    };
    EvolutionSources all;
    for (const auto& [uid, file] : files.asKeyValueRange()) {
        if (!isEnabled(uid))
            continue;
        addAddresses(file, all.addresses);
        for (const auto& [group, kind] : {std::pair(u"Calendar"_s, EvolutionSource::Kind::events),
                                          std::pair(u"Task List"_s, EvolutionSource::Kind::tasks)})
            if (file.contains(group) && isOn(file, group))
                all.sources.append({.uid = uid, .kind = kind});
    }
    return all;
}

EvolutionSources EvolutionSources::read(const QDBusMessage& reply) {
    using Objects = QMap<QDBusObjectPath, QMap<QString, QVariantMap>>;
    QMap<QString, QString> data;
    if (reply.signature() != "a{oa{sa{sv}}}"_L1)
        return {};
    const auto objects = qdbus_cast<Objects>(reply.arguments().constFirst());
    for (const auto& interfaces : objects) {
        const auto source = interfaces.value(u"org.gnome.evolution.dataserver.Source"_s);
        data.insert(source.value(u"UID"_s).toString(), source.value(u"Data"_s).toString());
    }
    return read(data);
}

} // namespace fendrel
