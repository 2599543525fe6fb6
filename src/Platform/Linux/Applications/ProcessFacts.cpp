#include "Platform/Linux/Applications/ProcessFacts.h"

#include <QFile>
#include <QRegularExpression>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qint64 startTimeOf(const QByteArray& stat) {
    // The second field is the program's name in parentheses, which may hold blanks and parentheses itself. The start
    // is field 22, the twentieth behind it.
    const auto fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    return fields.value(19).toLongLong();
}

QString launchedEntryOf(const QByteArray& environment, qint64 pid) {
    QString entry;
    QByteArray owner;
    for (const QByteArray& variable : environment.split('\0')) {
        if (variable.startsWith("GIO_LAUNCHED_DESKTOP_FILE="))
            entry = QFile::decodeName(variable.mid(26));
        else if (variable.startsWith("GIO_LAUNCHED_DESKTOP_FILE_PID="))
            owner = variable.mid(30);
    }
    // Children inherit the variables, so a program started from a terminal would pass for the terminal.
    return owner == QByteArray::number(pid) ? entry : QString();
}

QString flatpakOf(const QByteArray& info) {
    static const QRegularExpression name(u"^name=(.+)$"_s, QRegularExpression::MultilineOption);
    return name.match(QString::fromUtf8(info)).captured(1).trimmed();
}

} // namespace

ProcessFacts ProcessFacts::read(qint64 pid, const QString& proc) {
    const QString folder = u"%1/%2/"_s.arg(proc).arg(pid);
    ProcessFacts facts;
    facts.startTime = startTimeOf(content(folder + u"stat"_s));
    facts.executable = QFile::symLinkTarget(folder + u"exe"_s);
    if (facts.executable.endsWith(" (deleted)"_L1)) // it was updated while it runs
        facts.executable.chop(10);
    for (const QByteArray& argument : content(folder + u"cmdline"_s).split('\0'))
        facts.arguments.append(QFile::decodeName(argument));
    facts.launchedEntry = launchedEntryOf(content(folder + u"environ"_s), pid);
    facts.flatpakID = flatpakOf(content(folder + u"root/.flatpak-info"_s));

    // "snap.NAME.APP-<id>.scope" or "snap.NAME.APP.service" somewhere in the control group's path
    static const QRegularExpression snap(u"/snap\\.([^./]+)\\.([^./]+?)(-[0-9a-f-]{36})?\\.(scope|service)"_s);
    const auto match = snap.match(QString::fromUtf8(content(folder + u"cgroup"_s)));
    // A program of the system that a snap started shares its group.
    if (const QString name = match.captured(1); facts.executable.contains(u"/snap/%1/"_s.arg(name))) {
        facts.snapName = name;
        facts.snapApp = match.captured(2);
    }
    return facts;
}

} // namespace fendrel
