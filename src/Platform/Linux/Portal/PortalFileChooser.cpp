#include "Platform/Linux/Portal/PortalFileChooser.h"

#include "Platform/Linux/Portal/FileAddress.h"
#include "Platform/Linux/Portal/PortalRequest.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString interface = u"org.freedesktop.portal.FileChooser"_s;

/// As the portal is told: a pattern of names, or a kind of content.
struct PortalPattern {
    uint kind{};
    QString text{};
};

struct PortalFilter {
    QString name{};
    QList<PortalPattern> patterns{};
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalPattern& pattern) {
    argument.beginStructure();
    argument << pattern.kind << pattern.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalPattern& pattern) {
    argument.beginStructure();
    argument >> pattern.kind >> pattern.text;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const PortalFilter& filter) {
    argument.beginStructure();
    argument << filter.name << filter.patterns;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalFilter& filter) {
    argument.beginStructure();
    argument >> filter.name >> filter.patterns;
    argument.endStructure();
    return argument;
}

QVariantMap optionsFor(const FileQuestion& question) {
    QVariantMap options;
    QList<PortalFilter> filters;
    for (const FileQuestion::Filter& filter : question.filters) {
        PortalFilter& added = filters.emplace_back(PortalFilter{.name = filter.name});
        for (const QString& glob : filter.globs)
            added.patterns.append({.text = glob});
    }
    if (!filters.isEmpty())
        options.insert(u"filters"_s, QVariant::fromValue(filters));
    if (question.isForFolder)
        options.insert(u"directory"_s, true);
    if (!question.suggestedName.isEmpty())
        options.insert(u"current_name"_s, question.suggestedName);
    if (!question.folder.isEmpty())
        options.insert(u"current_folder"_s,
                       QFile::encodeName(question.folder).append('\0')); // the portal wants its end
    return options;
}

FileChooser::Choice choiceFrom(const PortalRequest::Response& response) {
    using Choice = FileChooser::Choice;
    // A dialog whose window was closed ended "in another way".
    if (response.code != 0)
        return Choice::failure(FileChooser::NoFile::cancelled);
    const QStringList addresses = response.results.value(u"uris"_s).toStringList();
    const auto path = addresses.isEmpty() ? std::nullopt : pathOfFileAddress(addresses.constFirst());
    return path ? Choice(*path) : Choice::failure(FileChooser::NoFile::unusable);
}

} // namespace

PortalFileChooser::PortalFileChooser()
    : m_portal(PortalRequest::service, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange) {
    qDBusRegisterMetaType<PortalPattern>();
    qDBusRegisterMetaType<QList<PortalPattern>>();
    qDBusRegisterMetaType<PortalFilter>();
    qDBusRegisterMetaType<QList<PortalFilter>>();
    connect(&m_portal, &QDBusServiceWatcher::serviceOwnerChanged, this, &PortalFileChooser::look);
    look();
}

void PortalFileChooser::look() {
    auto question = QDBusMessage::createMethodCall(PortalRequest::service, PortalRequest::path,
                                                   u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << interface << u"version"_s;
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        const QString error = reply.error().name();
        if (error.endsWith(".ServiceUnknown"_L1) || error.endsWith(".NameHasNoOwner"_L1))
            lookWhetherItStarts();
        else
            setAvailable(reply.isValid());
    });
}

void PortalFileChooser::lookWhetherItStarts() {
    const QString bus = u"org.freedesktop.DBus"_s;
    const auto question =
        QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, u"ListActivatableNames"_s);
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QStringList> reply = *answer;
        answer->deleteLater();
        setAvailable(reply.isValid() && reply.value().contains(PortalRequest::service));
    });
}

void PortalFileChooser::setAvailable(bool isAvailable) {
    if (std::exchange(m_isAvailable, isAvailable) != isAvailable)
        onChanged();
}

Handle PortalFileChooser::open(const FileQuestion& question, Done done) {
    return ask(u"OpenFile"_s, question, std::move(done));
}

Handle PortalFileChooser::save(const FileQuestion& question, Done done) {
    return ask(u"SaveFile"_s, question, std::move(done));
}

Handle PortalFileChooser::ask(const QString& method, const FileQuestion& question, Done done) {
    const QString window = question.window == 0 ? QString() : u"x11:%1"_s.arg(question.window, 0, 16);
    return PortalRequest::ask(this, interface, method, {window, question.title}, optionsFor(question),
                              [this, done = std::move(done)](const std::optional<PortalRequest::Response>& response) {
                                  if (!response)
                                      look(); // there is a portal, but perhaps without such a dialog
                                  done(response ? choiceFrom(*response) : Choice::failure(NoFile::failed));
                              });
}

} // namespace fendrel
