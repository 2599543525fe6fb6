#include "Platform/Linux/Docks/PlasmaDock.h"

#include "Platform/Shared/AtNextTurn.h"

#include <QCoreApplication>
#include <QDBusReply>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString readScript = uR"(
var told = [];
var all = panels();
for (var i = 0; i < all.length; ++i) {
    all[i].currentConfigGroup = ['Fendrel'];
    told.push({id: String(all[i].id), location: all[i].location, hiding: String(all[i].hiding),
               mark: String(all[i].readConfig('hidden', ''))});
}
print(JSON.stringify(told));
)"_s;

const QString writeScript = uR"(
var changes = %1;
for (var name in changes) {
    var panel = panelById(Number(name.split('/')[0]));
    if (!panel)
        continue;
    if (name.split('/')[1] === 'hiding') {
        panel.hiding = changes[name];
    } else {
        panel.currentConfigGroup = ['Fendrel'];
        panel.writeConfig('hidden', changes[name]);
    }
}
print('done');
)"_s;

struct Panel {
    QString id{};
    std::optional<Qt::Edge> edge{};
    QString hiding{};
    QString mark{};
};

Handle run(const QString& script, std::function<void(const std::optional<QString>& printed)> done) {
    auto call = QDBusMessage::createMethodCall(u"org.kde.plasmashell"_s, u"/PlasmaShell"_s, u"org.kde.PlasmaShell"_s,
                                               u"evaluateScript"_s);
    call.setAutoStartService(false);
    call << script;
    return callOnBus(call, {}, [done = std::move(done)](const QDBusMessage& message) {
        const QDBusReply<QString> reply(message);
        done(reply.isValid() ? std::optional(reply.value()) : std::nullopt);
    });
}

Handle readPanels(std::function<void(const std::optional<QList<Panel>>&)> done) {
    return run(readScript, [done = std::move(done)](const std::optional<QString>& printed) {
        const auto told = QJsonDocument::fromJson(printed.value_or(QString()).toUtf8());
        if (!told.isArray())
            return done({});
        QList<Panel> panels;
        const QJsonArray all = told.array();
        for (const auto& panel : all)
            panels.append({.id = panel[u"id"].toString(),
                           .edge = dockEdge(panel[u"location"].toString()),
                           .hiding = panel[u"hiding"].toString(),
                           .mark = panel[u"mark"].toString()});
        done(panels);
    });
}

} // namespace

PlasmaDock::PlasmaDock()
    : m_file(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
             u"/plasma-org.kde.plasma.desktop-appletsrc"_s) {
    QObject::connect(&m_files, &QFileSystemWatcher::fileChanged, [this] { look(); });
    // Everybody's settings are in that folder: it only tells of a file that was not there when it was to be watched.
    QObject::connect(&m_files, &QFileSystemWatcher::directoryChanged, [this] {
        if (m_isRunning && m_files.files().isEmpty() && QFile::exists(m_file))
            look();
    });
    m_files.addPath(QFileInfo(m_file).path());
}

QString PlasmaDock::name() const {
    return QCoreApplication::translate("Docks", "the Plasma panel");
}

void PlasmaDock::setRunning(bool isRunning) {
    m_isRunning = isRunning;
    look();
}

void PlasmaDock::look() {
    m_looking.reset();
    if (!m_isRunning)
        return setEdges({});
    m_files.addPath(m_file); // again each time: it is replaced, not written to
    m_looking = readPanels([this](const std::optional<QList<Panel>>& panels) {
        QList<Qt::Edge> edges;
        for (const Panel& panel : panels.value_or(QList<Panel>())) {
            if (panel.edge)
                edges.append(*panel.edge);
        }
        setEdges(edges);
    });
}

Handle PlasmaDock::read(const QJsonObject& details, ReadDone done) {
    return readPanels([details, done = std::move(done)](const std::optional<QList<Panel>>& panels) {
        if (!panels)
            return done({});
        QList<DockSetting> settings;
        for (const Panel& panel : *panels) {
            const QString hiding = panel.id + u"/hiding"_s;
            if (!panel.edge && !details.contains(hiding))
                continue;
            settings.append({hiding, panel.hiding, true, u"autohide"_s});
            settings.append({panel.id + u"/mark"_s, panel.mark, !panel.mark.isEmpty(), u"true"_s});
        }
        done(settings);
    });
}

Handle PlasmaDock::change(const DockChanges& changes, ChangeDone done) {
    if (changes.isEmpty())
        return atNextTurn([done = std::move(done)] { done(true); });
    QJsonObject values;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const bool isHiding = change.key().endsWith(u"/hiding"_s);
        values.insert(change.key(), change->value_or(isHiding ? u"none"_s : QString()));
    }
    const auto json = QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
    return run(writeScript.arg(json), [done = std::move(done)](const std::optional<QString>& printed) {
        done(printed && printed->trimmed() == u"done"_s);
    });
}

} // namespace fendrel
