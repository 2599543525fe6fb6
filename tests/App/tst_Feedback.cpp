#include "App/Feedback.h"
#include "fakes/FakeSettings.h"
#include "fakes/FakeShell.h"

#include <QFile>
#include <QTemporaryDir>
#include <QUrlQuery>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

struct World {
    QTemporaryDir home;
    FakeSettings settings;
    FakeShell shell;
    Feedback feedback{settings, shell, home.path()};
    QList<Alert> alerts;

    World() {
        feedback.showAlert = [this](const Alert& alert) { alerts.append(alert); };
    }
    QString report(const char* name, int age) const { // in seconds
        QFile file(home.filePath(QString::fromLatin1(name)));
        const auto date = QDateTime::fromSecsSinceEpoch(1'700'000'000 - age);
        const bool isMade = file.open(QIODevice::WriteOnly) && file.setFileTime(date, QFile::FileModificationTime);
        return isMade ? file.fileName() : QString();
    }
};

} // namespace

class FeedbackTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersTheNewestReportOnce() {
        World world;
        world.feedback.offerCrashReport(); // there is none
        Feedback(world.settings, world.shell, world.home.filePath(u"no folder"_s)).offerCrashReport();
        QCOMPARE(world.settings.writes, 0);
        world.report("Fendrel-1.ips", 300);
        const QString newest = world.report("Fendrel-0.ips", 200);
        world.report("Other-1.ips", 100);
        world.report("Fendrel-1.txt", 100);
        world.feedback.offerCrashReport();
        world.feedback.offerCrashReport();
        world.report("Fendrel-2.ips", 200); // no newer than the one offered
        world.feedback.offerCrashReport();
        QCOMPARE(world.alerts.size(), 1);
        world.alerts.first().answered(0);
        QCOMPARE(world.shell.mails.last().attachments, QStringList{newest});
        world.report("Fendrel-3.ips", 199);
        world.feedback.offerCrashReport();
        QCOMPARE(world.alerts.size(), 2);
    }

    void sendsItByMail() {
        World world;
        const QString report = world.report("Fendrel-1.ips", 0);
        world.feedback.offerCrashReport();
        const Alert& alert = world.alerts.first();
        QCOMPARE(alert.buttons, (QStringList{u"Send Report…"_s, u"Not Now"_s}));
        alert.answered(1);
        QVERIFY(world.shell.mails.isEmpty());
        alert.answered(0);
        const Mail mail = world.shell.mails.value(0);
        QCOMPARE(mail.subject, u"Fendrel crash report"_s);
        QVERIFY(mail.body.startsWith(u"What were you doing when it happened? (optional)\n" FENDREL_VERSION " · "_s));
        world.shell.answerMail(true);
        QVERIFY(world.shell.addresses.isEmpty() && world.shell.revealed.isEmpty());

        alert.answered(0);
        world.shell.answerMail(false); // no program takes it
        const QUrl link = world.shell.addresses.value(0);
        QCOMPARE(link.scheme(), u"mailto"_s);
        QCOMPARE(link.path(), mail.to);
        QCOMPARE(QUrlQuery(link).queryItemValue(u"subject"_s, QUrl::FullyDecoded), mail.subject);
        QCOMPARE(QUrlQuery(link).queryItemValue(u"body"_s, QUrl::FullyDecoded), mail.body);
        QCOMPARE(world.shell.revealed, QList<QStringList>{{report}});
    }
};

QTEST_APPLESS_MAIN(FeedbackTest)
#include "tst_Feedback.moc"
