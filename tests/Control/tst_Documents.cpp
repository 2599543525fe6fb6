#include "Control/Commands.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class DocumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase(); ///< every document names every command
    void bashCompletes_data();
    void bashCompletes();
    void manReadsThePage();

private:
    QTemporaryDir m_folder;
};

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

void DocumentsTest::initTestCase() {
    for (const QString& kind : {u"man"_s, u"bash"_s, u"zsh"_s, u"fish"_s}) {
        const QByteArray text = run(QStringLiteral(FENDRELCTL), {u"--generate"_s, kind});
        QFile file(m_folder.filePath(kind));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        const QString plain = QString::fromUtf8(text).remove(u'\\');
        for (const auto& command : control::commands()) {
            for (const QString& word : command.name.split(u' '))
                QVERIFY2(plain.contains(word) != command.isInternal, qPrintable(kind + u' ' + word));
        }
    }
}

void DocumentsTest::bashCompletes_data() {
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* typed, const char* expected) {
        QTest::newRow(typed) << QByteArray(expected);
    };
    row("focus |", "start stop");
    row("focus st|", "start stop");
    row("focus sto|", "stop");
    row("fo|", "focus");
    row("gate |", "stay switch allow-once add");
    row("focus start |", "--for");
    row("focus start --for |", "25m 50m 90m");
    row("settings |", "list get set open");
    row("switch |", "writing social");
    row("correct s|", "social");
    row("mode add-app |", "writing social");
    row("mode add-app writing |", "");
    row("settings get dock|", "dockSize dockPosition");
    row("settings set dockSize |", "");
    row("status |", "");
    row("act|", "");
    row("nonsense |", "");
}

void DocumentsTest::bashCompletes() {
    const QString bash = QStandardPaths::findExecutable(u"bash"_s);
    if (bash.isEmpty())
        QSKIP("there is no bash");
    const QString file = m_folder.filePath(u"bash"_s);
    QCOMPARE(run(bash, {u"-n"_s, file}), QByteArray());
    QStringList words =
        (u"fendrelctl "_s + QString::fromLatin1(QTest::currentDataTag()).chopped(1)).split(u' ');
    for (QString& word : words)
        word = u"'%1'"_s.arg(word);
    // A stand-in for the program answers with the modes and settings.
    const QString script = uR"(
        fendrelctl() {
            case "$*" in
            modes) printf 'writing\tWriting\t*\nsocial\tSocial\n' ;;
            'settings list') printf 'dockSize: medium\ndockPosition: left\nmagnify: yes\nappearance:\n  opacity: 1\n' ;;
            esac
        }
        . "$1"
        COMP_WORDS=(%1); COMP_CWORD=%2; _fendrelctl; printf '%s' "${COMPREPLY[*]}")"_s.arg(words.join(u' '))
                               .arg(words.size() - 1);
    QTEST(run(bash, {u"-c"_s, script, u"bash"_s, file}), "expected");
}

void DocumentsTest::manReadsThePage() {
    const QString groff = QStandardPaths::findExecutable(u"groff"_s);
    if (groff.isEmpty())
        QSKIP("there is no groff");
    const QStringList quietly{u"-man"_s, u"-ww"_s, u"-b"_s, u"-z"_s, m_folder.filePath(u"man"_s)};
    QCOMPARE(run(groff, quietly), QByteArray()); // no warning
}

QTEST_GUILESS_MAIN(DocumentsTest)
#include "tst_Documents.moc"
