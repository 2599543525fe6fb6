#include "Platform/Linux/Desktop/AutostartFile.h"

namespace fendrel::autostartFile {

using namespace Qt::StringLiterals;

namespace {

/// The values of the keys that turn an entry off, as far as they do.
bool isOff(const QByteArray& content) {
    bool isInside = false;
    for (const QByteArray& raw : content.split('\n')) {
        const QByteArray line = raw.trimmed();
        if (line.startsWith('[')) {
            isInside = line == "[Desktop Entry]";
            continue;
        }
        const qsizetype separator = line.indexOf('=');
        if (!isInside || separator < 0)
            continue;
        const QByteArray key = line.first(separator).trimmed();
        const QByteArray value = line.sliced(separator + 1).trimmed();
        if ((key == "Hidden" && value == "true") || (key == "X-GNOME-Autostart-enabled" && value == "false"))
            return true;
    }
    return false;
}

/// A string value of an entry, where backslashes begin escapes.
QString value(QString text) {
    return text.replace(u'\\', u"\\\\"_s);
}

/// One word of a command line, which has quotes and field codes of its own.
QString commandWord(const QString& text) {
    QString quoted;
    for (const QChar letter : text) {
        if (u"\"`$\\"_s.contains(letter))
            quoted += u'\\';
        quoted += letter;
        if (letter == u'%')
            quoted += u'%';
    }
    return u'"' + quoted + u'"';
}

QByteArray entry(const QString& program) {
    return u"[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Fendrel\n"
           "Icon=org.fendrel.Fendrel\n"
           "TryExec=%1\n"
           "Exec=%2\n"
           "StartupNotify=false\n"
           "X-GNOME-Autostart-enabled=true\n"_s.arg(value(program), value(commandWord(program)))
               .toUtf8();
}

} // namespace

bool starts(const std::optional<QByteArray>& own, const std::optional<QByteArray>& everybodys) {
    const auto& counts = own ? own : everybodys;
    return counts && !isOff(*counts);
}

Change change(bool on, const std::optional<QByteArray>& own, const std::optional<QByteArray>& everybodys,
              const QString& program) {
    if (on == starts(own, everybodys))
        return {};
    const bool isOnWithoutOwn = starts({}, everybodys);
    if (on == isOnWithoutOwn)
        return {.kind = Change::Kind::remove};
    if (on)
        return {.kind = Change::Kind::write, .content = entry(program)};
    return {.kind = Change::Kind::write, .content = "[Desktop Entry]\nType=Application\nName=Fendrel\nHidden=true\n"};
}

} // namespace fendrel::autostartFile
