#include "Platform/Linux/Applications/ExecLine.h"

#include "Platform/Linux/Applications/DesktopEntry.h"

#include <QRegularExpression>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

struct Word {
    QString text{};
    bool isQuoted{}; ///< only "%%" is a code in there
};

/// Cuts a line into words, undoing its quotes. Nothing when a quote stays open.
std::optional<QList<Word>> words(QStringView line) {
    QList<Word> words;
    Word word;
    bool isInWord = false;
    bool isInQuotes = false;
    for (qsizetype index = 0; index < line.size(); ++index) {
        const QChar letter = line[index];
        const bool isEscape = letter == u'\\' && index + 1 < line.size();
        if (isInQuotes) {
            if (letter == u'"')
                isInQuotes = false;
            else if (isEscape && u"\"`$\\"_s.contains(line[index + 1]))
                word.text += line[++index];
            else
                word.text += letter;
        } else if (letter == u'"') {
            isInQuotes = isInWord = word.isQuoted = true;
        } else if (letter.isSpace()) {
            if (std::exchange(isInWord, false))
                words.append(std::exchange(word, {}));
        } else {
            // The standard asks for quotes around a backslash; files in the wild escape blanks without.
            word.text += isEscape ? line[++index] : letter;
            isInWord = true;
        }
    }
    if (isInQuotes)
        return {};
    if (isInWord)
        words.append(word);
    return words;
}

/// One word with its field codes filled in. Nothing when it was only a code that stands for nothing.
std::optional<QString> filledIn(const QString& word, const DesktopEntry& entry, const QString& opened) {
    QString text;
    bool isOnlyCode = true;
    for (qsizetype index = 0; index < word.size(); ++index) {
        if (word[index] != u'%' || index + 1 == word.size()) {
            text += word[index];
            isOnlyCode = false;
            continue;
        }
        switch (word[++index].unicode()) {
        case u'%':
            text += u'%';
            break;
        case u'c':
            text += entry.name;
            break;
        case u'k':
            text += entry.path;
            break;
        case u'f':
        case u'u':
            text += opened;
            break;
        default:
            break; // lists, which are words of their own, and codes that are out of use
        }
    }
    return text.isEmpty() && isOnlyCode ? std::nullopt : std::optional(text);
}

/// The line with its codes filled in; `opened` is in the form that the program takes.
std::optional<QStringList> filledLine(const DesktopEntry& entry, const QStringList& opened) {
    const auto line = words(entry.exec);
    if (!line)
        return {};
    QStringList arguments;
    for (const auto& [text, isQuoted] : *line) {
        if (isQuoted) {
            arguments.append(QString(text).replace("%%"_L1, "%"_L1));
        } else if (text == "%i"_L1) {
            if (!entry.icon.isEmpty())
                arguments << u"--icon"_s << entry.icon;
        } else if (text == "%F"_L1 || text == "%U"_L1) {
            arguments += opened;
        } else if (const auto filled = filledIn(text, entry, opened.value(0))) {
            arguments.append(*filled);
        }
    }
    if (arguments.isEmpty() || arguments.first().isEmpty())
        return {};
    return arguments;
}

/// The letter of the code by which a program takes what it opens; null when it has none.
QChar openingCode(const DesktopEntry& entry) {
    for (const auto& [text, isQuoted] : words(entry.exec).value_or(QList<Word>())) {
        for (qsizetype at = isQuoted ? -1 : text.indexOf(u'%'); at >= 0; at = text.indexOf(u'%', at + 2)) {
            if (const QString letter = text.mid(at + 1, 1); !letter.isEmpty() && u"fFuU"_s.contains(letter))
                return letter.front();
        }
    }
    return {};
}

} // namespace

std::optional<QStringList> execArguments(const DesktopEntry& entry) {
    return filledLine(entry, {});
}

bool takesAddresses(const DesktopEntry& entry) {
    return openingCode(entry).toLower() == u'u';
}

bool isBrowser(const DesktopEntry& entry) {
    const auto opens = [&](const QString& type) { return entry.mimeTypes.contains(type); };
    // Editors and office programs take pages, too, but plain text as well.
    return opens(u"x-scheme-handler/https"_s) || opens(u"x-scheme-handler/http"_s) ||
           entry.categories.contains(u"WebBrowser"_s) ||
           (opens(u"text/html"_s) && !opens(u"text/plain"_s) && takesAddresses(entry));
}

QList<QStringList> execLines(const DesktopEntry& entry, const QList<QUrl>& files) {
    const QChar code = openingCode(entry);
    // Some programs open files and forget to say how. Others would take a file for a command.
    if (code.isNull() && entry.mimeTypes.isEmpty())
        return {};
    QStringList opened;
    for (const QUrl& file : files) {
        // What has no scheme could be taken for an option.
        if (takesAddresses(entry) && !file.isRelative())
            opened.append(file.toString(QUrl::FullyEncoded));
        else if (!takesAddresses(entry) && file.isLocalFile())
            opened.append(file.toLocalFile());
    }
    QList<QStringList> starts;
    if (code.isUpper() && !opened.isEmpty()) {
        starts.append(opened);
    } else {
        for (const QString& one : opened)
            starts.append({one});
    }
    QList<QStringList> lines;
    for (const QStringList& start : starts) {
        if (auto line = filledLine(entry, start))
            lines.append(code.isNull() ? *line + start : *line);
    }
    return lines;
}

QString programName(const QStringList& arguments) {
    // What these run is the program that a person would name.
    static const QRegularExpression runsAnother(
        u"^(env|sh|bash|dash|python[0-9.]*|perl|ruby|node|nodejs|gjs|gjs-console|java|electron[0-9]*|wine|wine64)$"_s);
    QString name;
    for (const QString& argument : arguments) {
        const bool isSetting = argument.startsWith(u'-') || (name == "env"_L1 && argument.contains(u'='));
        if (!name.isEmpty() && isSetting)
            continue;
        name = argument.section(u'/', -1);
        if (!runsAnother.match(name).hasMatch())
            return name;
    }
    return name;
}

QString programName(const QString& exec) {
    QStringList arguments;
    for (const Word& word : words(exec).value_or(QList<Word>()))
        arguments.append(word.text);
    return programName(arguments);
}

} // namespace fendrel
