#include "Control/Commands.h"
#include "Files.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

/// What the program says; errors too, so that they spoil what is expected.
QByteArray run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(20'000);
    return process.readAll();
}

} // namespace

class DocumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        for (const QString& kind : {u"man"_s, u"bash"_s, u"zsh"_s, u"fish"_s}) {
            const QByteArray text = run(QStringLiteral(FENDRELCTL), {u"--generate"_s, kind});
            putFile(m_folder.filePath(kind), text);
            const QString plain = QString::fromUtf8(text).remove(u'\\');
            for (const auto& command : control::commands()) {
                for (const QString& word : command.name.split(u' '))
                    QVERIFY2(plain.contains(word) != command.isInternal, qPrintable(kind + u' ' + word));
            }
        }
    }

    void bashCompletes() {
        const QString bash = QStandardPaths::findExecutable(u"bash"_s);
        if (bash.isEmpty())
            QSKIP("there is no bash");
        const QString file = m_folder.filePath(u"bash"_s);
        // A stand-in for the program answers with the modes and settings.
        const QString script = uR"(
            fendrelctl() {
                case "$*" in
                modes) printf 'writing\tWriting\t*\nsocial\tSocial\n' ;;
                'settings list') printf 'dockSize: medium\ndockPosition: left\nmagnify: yes\nappearance:\n  opacity: 1\n' ;;
                esac
            }
            . "$1"; shift
            COMP_WORDS=(fendrelctl "$@"); COMP_CWORD=$#; _fendrelctl; printf '%s' "${COMPREPLY[*]}")"_s;
        const auto completed = [&](const char* typed) {
            return run(bash, QStringList{u"-c"_s, script, u"bash"_s, file} + QString::fromLatin1(typed).split(u' '));
        };
        QCOMPARE(completed("focus "), "start stop");
        QCOMPARE(completed("focus sto"), "stop");
        QCOMPARE(completed("gate "), "stay switch allow-once add");
        QCOMPARE(completed("focus start "), "--for");
        QCOMPARE(completed("focus start --for "), "25m 50m 90m");
        QCOMPARE(completed("settings "), "list get set reset open");
        QCOMPARE(completed("switch "), "writing social");
        QCOMPARE(completed("mode add-app writing "), "");
        QCOMPARE(completed("settings get dock"), "dockSize dockPosition");
        QCOMPARE(completed("settings set dockSize "), "");
        QCOMPARE(completed("act"), "");
    }

    void manReadsThePage() {
        const QString groff = QStandardPaths::findExecutable(u"groff"_s);
        if (groff.isEmpty())
            QSKIP("there is no groff");
        const QStringList quietly{u"-man"_s, u"-ww"_s, u"-b"_s, u"-z"_s, m_folder.filePath(u"man"_s)};
        QCOMPARE(run(groff, quietly), QByteArray()); // no warning
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(DocumentsTest)
#include "tst_Documents.moc"
