#include "Platform/Linux/Docks/CinnamonDock.h"

#include "Platform/Linux/Docks/ConfigurationDock.h"

#include <QCoreApplication>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

ConfigurationKey key(const QString& list) {
    return {.schema = u"org.cinnamon"_s, .key = list};
}

const QString panelList = u"panels-enabled"_s;
const QMap<QString, QString> hiding{{u"panels-autohide"_s, u"true"_s}, {u"panels-show-delay"_s, u"1000000"_s}};

/// By panel.
using Entries = QMap<QString, QString>;

Entries entriesOf(const std::optional<QString>& list) {
    Entries entries;
    for (const QString& entry : textsOf(list))
        entries.insert(entry.section(u':', 0, 0), entry.section(u':', 1));
    return entries;
}

QString listOf(const Entries& entries) {
    QStringList texts;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        texts.append(u"'%1:%2'"_s.arg(entry.key(), entry.value()));
    return u'[' + texts.join(u", "_s) + u']';
}

QMap<QString, Qt::Edge> placesOf(const std::optional<QString>& list) {
    QMap<QString, Qt::Edge> places;
    const Entries entries = entriesOf(list);
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        if (const auto edge = dockEdge(entry->section(u':', 1))) // behind the display's number
            places.insert(entry.key(), *edge);
    }
    return places;
}

} // namespace

QString CinnamonDock::name() const {
    return QCoreApplication::translate("Docks", "the Cinnamon panel");
}

void CinnamonDock::setRunning(bool isRunning) {
    m_isRunning = isRunning;
    m_watch = isRunning ? m_configuration->watch(key(panelList), [this] { look(); }) : Handle();
    look();
}

void CinnamonDock::look() {
    setEdges(m_isRunning ? placesOf(m_configuration->value(key(panelList))).values() : QList<Qt::Edge>());
}

Handle CinnamonDock::read(const QJsonObject& details, ReadDone done) {
    // What a run that was killed sent last may still be on its way.
    return m_configuration->whenStored([this, details, done = std::move(done)] { done(settings(details)); });
}

QList<DockSetting> CinnamonDock::settings(const QJsonObject& details) const {
    QStringList panels = placesOf(m_configuration->value(key(panelList))).keys();
    for (const QString& saved : details.keys()) {
        if (const QString panel = saved.section(u':', 1); !panels.contains(panel))
            panels.append(panel);
    }
    QList<DockSetting> settings;
    for (auto each = hiding.cbegin(); each != hiding.cend(); ++each) {
        const auto list = m_configuration->value(key(each.key()));
        if (!list)
            continue;
        const Entries entries = entriesOf(list);
        const bool isSet = m_configuration->isSet(key(each.key()));
        for (const QString& panel : panels)
            settings.append({each.key() + u':' + panel, entries.value(panel), isSet, each.value()});
    }
    return settings;
}

Handle CinnamonDock::change(const DockChanges& changes, ChangeDone done) {
    for (const QString& list : hiding.keys()) {
        DockChanges panels;
        for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
            if (change.key().section(u':', 0, 0) == list)
                panels.insert(change.key().section(u':', 1), *change);
        }
        if (!panels.isEmpty())
            change(list, panels);
    }
    return m_configuration->whenStored([this, changes, done = std::move(done)] {
        bool isChanged = true;
        for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
            const auto list = m_configuration->value(key(change.key().section(u':', 0, 0)));
            if (*change && entriesOf(list).value(change.key().section(u':', 1)) != *change)
                isChanged = false;
        }
        done(isChanged);
    });
}

void CinnamonDock::change(const QString& list, const DockChanges& panels) {
    Entries entries = entriesOf(m_configuration->value(key(list)));
    Entries byDefault;
    for (auto panel = panels.cbegin(); panel != panels.cend(); ++panel) {
        if (!panel->has_value() && byDefault.isEmpty()) {
            m_configuration->reset(key(list));
            byDefault = entriesOf(m_configuration->value(key(list)));
        }
        const QString value = panel->value_or(byDefault.value(panel.key()));
        if (value.isEmpty())
            entries.remove(panel.key());
        else
            entries.insert(panel.key(), value);
    }
    if (entries != byDefault || byDefault.isEmpty())
        m_configuration->write(key(list), listOf(entries));
}

} // namespace fendrel
