#include "Platform/Linux/Desktop/DesktopShell.h"

#include "Base/Log.h"
#include "Platform/Linux/Applications/DefaultApplications.h"
#include "Platform/Linux/Applications/DetachedCommand.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>
#include <memory>

namespace fendrel {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

void openWithDesktop(const QUrl& address) {
    QProcess process;
    prepareDetached(process, {u"xdg-open"_s, address.toString(QUrl::FullyEncoded)});
    if (!process.startDetached())
        qCWarning(logDesktop).noquote() << "Couldn't start xdg-open:" << process.errorString();
}

} // namespace

DesktopShell::DesktopShell(std::shared_ptr<ApplicationCatalog> catalog, Clock& clock)
    : m_catalog(std::move(catalog)), m_clock(clock) {}

void DesktopShell::openAddress(const QUrl& address) {
    if (address.isValid() && !address.scheme().isEmpty())
        openWithDesktop(address);
}

void DesktopShell::reveal(const QStringList& paths) {
    QStringList addresses;
    for (const QString& path : paths)
        addresses.append(QString::fromUtf8(QUrl::fromLocalFile(path).toEncoded()));
    if (addresses.isEmpty())
        return;
    const QString service = u"org.freedesktop.FileManager1"_s;
    auto call = QDBusMessage::createMethodCall(service, u"/org/freedesktop/FileManager1"_s, service, u"ShowItems"_s);
    call << addresses << QString();
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, paths] {
        answer->deleteLater();
        // Without such a file manager the folder is shown, though nothing in it is selected.
        if (answer->isError())
            openWithDesktop(QUrl::fromLocalFile(QFileInfo(paths.first()).absolutePath()));
    });
}

QStringList mailCommand(const Mail& mail) {
    QStringList command{u"xdg-email"_s, u"--utf8"_s};
    if (!mail.subject.isEmpty())
        command << u"--subject"_s << mail.subject;
    if (!mail.body.isEmpty())
        command << u"--body"_s << mail.body;
    for (const QString& path : mail.attachments)
        command << u"--attach"_s << path;
    // It takes what begins with a dash for an option, and no address does.
    if (!mail.to.isEmpty() && !mail.to.startsWith(u'-'))
        command << mail.to;
    return command;
}

bool DesktopShell::hasMailProgramFor(const Mail& mail) const {
    const auto files = defaultApplicationFiles(DesktopEntryContext::ofThisSession().desktops);
    const auto* entry = defaultApplication(u"x-scheme-handler/mailto"_s, files, m_catalog->index());
    if (entry == nullptr || QStandardPaths::findExecutable(u"xdg-email"_s).isEmpty())
        return false;
    // Others open the mail without the attachments, and nobody would notice.
    const QStringList takeAttachments{u"thunderbird"_s, u"icedove"_s,    u"betterbird"_s, u"evolution"_s,
                                      u"kmail"_s,       u"claws-mail"_s, u"sylpheed"_s,   u"geary"_s};
    return mail.attachments.isEmpty() || std::ranges::any_of(takeAttachments, [&](const QString& name) {
               return entry->id.contains(name, Qt::CaseInsensitive);
           });
}

void DesktopShell::composeMail(const Mail& mail, std::function<void(bool isTaken)> done) {
    // Some mail programs keep the command until their window closes. One that runs that long took the mail.
    constexpr auto patience = 10s;
    auto* command = new DetachedCommand(this);
    const auto timeout = std::make_shared<Handle>();
    const auto finish = [command, timeout, done = std::move(done)](bool isTaken) {
        timeout->reset();
        command->deleteLater();
        command->onEnded = [](bool) {};
        done(isTaken);
    };
    if (hasMailProgramFor(mail) && command->start(mailCommand(mail))) {
        *timeout = m_clock.after(patience, [finish] { finish(true); });
        command->onEnded = finish;
    } else {
        *timeout = m_clock.after(0s, [finish] { finish(false); });
    }
}

} // namespace fendrel
