#include "App/Feedback.h"

#include "Ports/SettingsStore.h"
#include "Ports/Shell.h"

#include <QDir>
#include <QSysInfo>
#include <QUrlQuery>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {
const QString offeredKey = u"lastCrashReportOffered"_s;
}

Feedback::Feedback(SettingsStore& settings, Shell& shell, QString crashFolder)
    : m_settings(settings), m_shell(shell), m_crashFolder(std::move(crashFolder)) {}

std::optional<Feedback::Report> Feedback::newestReport() const {
    const auto reports = QDir(m_crashFolder).entryInfoList({u"Fendrel-*.ips"_s}, QDir::Files, QDir::Time);
    if (reports.isEmpty())
        return {};
    return Report{.path = reports.first().filePath(), .date = reports.first().lastModified()};
}

void Feedback::offerCrashReport() {
    const auto report = newestReport();
    if (!report)
        return;
    const auto offered = m_settings.read<QDateTime>(offeredKey);
    // Stored dates keep milliseconds, those of files more.
    if (offered && report->date.toMSecsSinceEpoch() <= offered->toMSecsSinceEpoch())
        return;
    m_settings.set(offeredKey, report->date);
    showAlert({.message = tr("Fendrel quit unexpectedly last time"),
               .informativeText =
                   tr("Send the crash report to help fix it? Your mail app opens with it attached, so you can read it "
                      "first. It has no documents or keystrokes, only what Fendrel was doing."),
               .buttons = {tr("Send Report…"), tr("Not Now")},
               .answered = [this, path = report->path](int button) {
                   if (button == 0)
                       send(path);
               }});
}

void Feedback::send(const QString& path) {
    const Mail mail{.to = QStringLiteral(FENDREL_SUPPORT_ADDRESS),
                    .subject = u"Fendrel crash report"_s,
                    .body = u"What were you doing when it happened? (optional)\n%1 · %2"_s.arg(
                        QStringLiteral(FENDREL_VERSION), QSysInfo::prettyProductName()),
                    .attachments = {path}};
    m_shell.composeMail(mail, [this, mail](bool isTaken) {
        if (isTaken)
            return;
        QUrlQuery query;
        query.addQueryItem(u"subject"_s, QString::fromLatin1(QUrl::toPercentEncoding(mail.subject)));
        query.addQueryItem(u"body"_s, QString::fromLatin1(QUrl::toPercentEncoding(mail.body)));
        QUrl link;
        link.setScheme(u"mailto"_s);
        link.setPath(mail.to);
        link.setQuery(query);
        m_shell.openAddress(link);
        m_shell.reveal(mail.attachments);
    });
}

} // namespace fendrel
