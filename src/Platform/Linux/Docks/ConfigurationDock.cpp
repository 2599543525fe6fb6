#include "Platform/Linux/Docks/ConfigurationDock.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

QStringList textsOf(const std::optional<QString>& list) {
    static const QRegularExpression text(u"'([^']*)'"_s);
    QStringList texts;
    for (auto found = text.globalMatch(list.value_or(QString())); found.hasNext();)
        texts.append(found.next().captured(1));
    return texts;
}

QString ConfigurationDock::name() const {
    return QCoreApplication::translate("Docks", m_kind.name);
}

void ConfigurationDock::setRunning(bool isRunning) {
    m_isRunning = isRunning;
    look();
}

void ConfigurationDock::look() {
    m_watches.clear();
    QList<Qt::Edge> edges;
    if (m_isRunning) {
        const auto watch = [this](const ConfigurationKey& key) {
            m_watches.push_back(m_configuration->watch(key, [this] { look(); }));
        };
        watch(m_kind.list);
        for (const QString& path : paths()) {
            watch({.schema = m_kind.schema, .key = m_kind.edgeKey, .path = path});
            const auto place = edge(path);
            if (place)
                edges.append(*place);
        }
    }
    setEdges(edges);
}

QStringList ConfigurationDock::paths() const {
    QStringList paths;
    for (const QString& panel : textsOf(m_configuration->value(m_kind.list)) + m_kind.unlisted) {
        const QString path = m_kind.path.isEmpty() ? QString() : m_kind.path.arg(panel);
        if ((m_kind.panels.isEmpty() || m_kind.panels.contains(panel)) && !paths.contains(path))
            paths.append(path);
    }
    return paths;
}

std::optional<Qt::Edge> ConfigurationDock::edge(const QString& path) const {
    const auto place = m_configuration->value({.schema = m_kind.schema, .key = m_kind.edgeKey, .path = path});
    return place ? dockEdge(place->sliced(1).chopped(1)) : std::nullopt;
}

ConfigurationKey ConfigurationDock::key(const QString& name) const {
    const qsizetype end = name.lastIndexOf(u'/') + 1;
    return {.schema = m_kind.schema, .key = name.sliced(end), .path = name.first(end)};
}

Handle ConfigurationDock::read(const QJsonObject& details, ReadDone done) {
    // What a run that was killed sent last may still be on its way.
    return m_configuration->whenStored([this, details, done = std::move(done)] { done(settings(details)); });
}

QList<DockSetting> ConfigurationDock::settings(const QJsonObject& details) const {
    QStringList hidden;
    for (const QString& path : paths()) {
        if (edge(path))
            hidden.append(path);
    }
    // A panel that was hidden and is not in use any more must not stay hidden for the day when it is again.
    for (const QString& saved : details.keys()) {
        if (const QString path = key(saved).path; !hidden.contains(path))
            hidden.append(path);
    }
    QList<DockSetting> settings;
    for (const QString& path : hidden) {
        for (const auto& each : m_kind.hiding) {
            const ConfigurationKey place{.schema = m_kind.schema, .key = each.key, .path = path};
            if (const auto now = m_configuration->value(place))
                settings.append({path + each.key, *now, m_configuration->isSet(place), each.value});
        }
    }
    return settings;
}

Handle ConfigurationDock::change(const DockChanges& changes, ChangeDone done) {
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change->has_value())
            m_configuration->write(key(change.key()), **change);
        else
            m_configuration->reset(key(change.key()));
    }
    return m_configuration->whenStored([this, changes, done = std::move(done)] { done(isAs(changes)); });
}

bool ConfigurationDock::isAs(const DockChanges& changes) const {
    return std::ranges::all_of(changes.keys(), [&](const QString& name) {
        const auto wanted = changes.value(name);
        return wanted ? m_configuration->value(key(name)) == wanted : !m_configuration->isSet(key(name));
    });
}

} // namespace fendrel
