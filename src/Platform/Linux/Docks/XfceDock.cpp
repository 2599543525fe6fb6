#include "Platform/Linux/Docks/XfceDock.h"

#include "Platform/Linux/Desktop/XfconfFile.h"
#include "Platform/Linux/Desktop/XfconfProperty.h"
#include "Platform/Shared/AtNextTurn.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusReply>
#include <QPointer>

#include <algorithm>
#include <memory>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString xfconf = u"org.xfce.Xfconf"_s;
const QString object = u"/org/xfce/Xfconf"_s;
const QString channel = u"xfce4-panel"_s;
const QString base = u"/panels"_s;
const QString autohide = u"/autohide-behavior"_s;
const QString output = u"/output-name"_s;
const QString always = u"uint:2"_s;
const QString nowhere = u"QString:hidden-by-fendrel"_s;

/// Types count: the panel's programs do not read one for the other.
QString textOf(const QVariant& value) {
    return QString::fromLatin1(value.typeName()) + u':' + value.toString();
}

QVariant valueOf(const QString& text) {
    const QMetaType type = QMetaType::fromName(text.section(u':', 0, 0).toLatin1());
    QVariant value = text.section(u':', 1);
    return value.convert(type) ? value : QVariant();
}

/// The edge a panel is attached to. The numbers are those of the panel's own list of places: in a corner it stands at
/// the edge along which it lies, and at 0 it floats.
std::optional<Qt::Edge> edgeOf(const QString& position, bool isVertical) {
    const int place = position.section(u';', 0, 0).section(u'=', 1).toInt();
    switch (place) {
    case 1:
    case 3:
        return Qt::RightEdge;
    case 2:
        return isVertical ? std::optional(Qt::RightEdge) : std::nullopt;
    case 4:
        return isVertical ? Qt::RightEdge : Qt::BottomEdge;
    case 5:
    case 7:
        return Qt::LeftEdge;
    case 6:
        return isVertical ? std::optional(Qt::LeftEdge) : std::nullopt;
    case 8:
        return isVertical ? Qt::LeftEdge : Qt::BottomEdge;
    case 10:
    case 12:
        return Qt::BottomEdge;
    default:
        return {};
    }
}

/// The panels that are docks, by where their properties are.
QMap<QString, Qt::Edge> placesOf(const QVariantMap& properties) {
    QMap<QString, Qt::Edge> places;
    const auto panels = qdbus_cast<QVariantList>(properties.value(base));
    for (const QVariant& panel : panels) {
        const QString path = base + u"/panel-"_s + panel.toString();
        const bool isVertical = properties.value(path + u"/mode"_s).toInt() != 0;
        if (const auto edge = edgeOf(properties.value(path + u"/position"_s).toString(), isVertical))
            places.insert(path, *edge);
    }
    return places;
}

Handle readAll(std::function<void(const std::optional<QVariantMap>&)> done) {
    auto call = QDBusMessage::createMethodCall(xfconf, object, xfconf, u"GetAllProperties"_s);
    call << channel << base;
    return callOnBus(call, {}, [done = std::move(done)](const QDBusMessage& message) {
        const QDBusReply<QVariantMap> reply(message);
        done(reply.isValid() ? std::optional(reply.value()) : std::nullopt);
    });
}

} // namespace

XfceDock::XfceDock(Clock& clock) : m_clock(clock) {
    auto bus = QDBusConnection::sessionBus();
    for (const QString& change : {u"PropertyChanged"_s, u"PropertyRemoved"_s})
        bus.connect(xfconf, object, xfconf, change, {channel}, QString(), this,
                    SLOT(onPropertyChanged(QString, QString)));
}

QString XfceDock::name() const {
    return QCoreApplication::translate("Docks", "the Xfce panel");
}

void XfceDock::setRunning(bool isRunning) {
    m_isRunning = isRunning;
    look();
}

void XfceDock::onPropertyChanged(const QString& /*channel*/, const QString& property) {
    if (property == base || property.endsWith(u"/position"_s) || property.endsWith(u"/mode"_s))
        look();
}

void XfceDock::look() {
    m_looking.reset();
    if (!m_isRunning)
        return setEdges({});
    m_looking = readAll([this](const std::optional<QVariantMap>& properties) {
        setEdges(placesOf(properties.value_or(QVariantMap())).values());
    });
}

Handle XfceDock::read(const QJsonObject& details, ReadDone done) {
    return readAll([details, done = std::move(done)](const std::optional<QVariantMap>& properties) {
        if (!properties)
            return done({});
        // A panel that was removed took its properties with it; one that went to the upper edge is still hidden.
        QStringList panels = placesOf(*properties).keys();
        for (const QString& saved : details.keys()) {
            if (const QString panel = saved.section(u'/', 0, -2); !panels.contains(panel))
                panels.append(panel);
        }
        QList<DockSetting> settings;
        for (const QString& panel : panels) {
            const QVariant behaviour = properties->value(panel + autohide);
            const QVariant place = properties->value(panel + output);
            settings.append({panel + autohide, textOf(behaviour), behaviour.isValid(), always});
            settings.append({panel + output, textOf(place), place.isValid(), nowhere});
        }
        done(settings);
    });
}

Handle XfceDock::change(const DockChanges& changes, ChangeDone done) {
    if (changes.isEmpty())
        return atNextTurn([done = std::move(done)] { done(true); });
    struct Answers {
        std::vector<Handle> writes{};
        qsizetype missing{};
        bool isChanged = true;
    };
    const auto answers = std::make_shared<Answers>();
    answers->missing = changes.size();
    // A panel finds its place on the screen when it stops hiding by itself, for which it must be on one by then.
    QStringList names = changes.keys();
    std::stable_partition(names.begin(), names.end(),
                          [&](const QString& name) { return name.endsWith(output) && changes.value(name) != nowhere; });
    for (const QString& name : names) {
        const auto wanted = changes.value(name);
        const QVariant value = wanted ? valueOf(*wanted) : QVariant();
        answers->writes.push_back(XfconfProperty(channel, name).write(value, {}, [=](bool isWritten) {
            answers->isChanged = answers->isChanged && isWritten;
            if (--answers->missing == 0)
                done(answers->isChanged);
        }));
    }
    return Handle([answers] { answers->writes.clear(); });
}

Handle XfceDock::whenStored(const DockChanges& changes, std::function<void()> run) {
    XfconfFile::Values values;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change)
        values.insert(change.key(), *change ? std::optional(valueOf(**change).toString()) : std::nullopt);
    auto* file = new XfconfFile(channel, values, m_clock, this);
    file->onStored = [file, run = std::move(run)] {
        file->deleteLater();
        run();
    };
    return Handle([file = QPointer(file)] { delete file.data(); });
}

} // namespace fendrel
