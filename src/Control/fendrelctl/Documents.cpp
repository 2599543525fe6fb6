#include "Control/fendrelctl/Documents.h"

#include "Control/Commands.h"

#include <algorithm>

namespace fendrel::control::Documents {

using namespace Qt::StringLiterals;

namespace {

QList<Command> shown() {
    QList<Command> list = commands();
    list.removeIf([](const Command& command) { return command.isInternal; });
    return list;
}

/// The text as roff shows it: nothing in it is taken for a request.
QString roff(QString text) {
    text.replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s);
    return text.startsWith(u'.') || text.startsWith(u'\'') ? u"\\&"_s + text : text;
}

/// The shell words that list what a parameter takes; empty where anything goes.
QString candidates(Takes takes) {
    switch (takes) {
    case Takes::mode:
        return u"$(fendrelctl modes 2>/dev/null | cut -f1)"_s;
    case Takes::setting:
        return u"$(fendrelctl settings list 2>/dev/null | grep -o '^[A-Za-z]*')"_s;
    case Takes::gateAnswer:
        return gateAnswers().join(u' ');
    case Takes::duration:
        return u"25m 50m 90m"_s;
    case Takes::file:
        return u"$(compgen -f -- \"$current\")"_s;
    case Takes::service:
        return u"$(fendrelctl account list 2>/dev/null | cut -d: -f1)"_s;
    case Takes::widget:
        return u"$(fendrelctl widgets 2>/dev/null | cut -f1)"_s;
    case Takes::nothing:
    case Takes::text:
    case Takes::app:
        return {};
    }
    return {};
}

struct Branch {
    QString words;
    QStringList next;
};

/// For each beginning of a command, the words that can follow.
QList<Branch> branches() {
    QList<Branch> list;
    const auto add = [&](const QString& words, const QString& next) {
        auto branch = std::ranges::find(list, words, &Branch::words);
        if (branch == list.end()) {
            list.append(Branch{.words = words, .next = {}});
            branch = list.end() - 1;
        }
        if (!next.isEmpty() && !branch->next.contains(next))
            branch->next.append(next);
    };
    for (const Command& command : shown()) {
        const QStringList words = command.name.split(u' ');
        for (qsizetype count = 0; count < words.size(); ++count)
            add(words.first(count).join(u' '), words[count]);
        for (const Option& option : command.options)
            add(command.name, u"--"_s + option.name);
        QString typed = command.name;
        for (const Parameter& parameter : command.parameters) {
            add(typed, candidates(parameter.takes));
            typed += u" *"_s;
        }
        for (const Option& option : command.options)
            add(command.name + u" --"_s + option.name, candidates(option.takes));
    }
    list.removeIf([](const Branch& branch) { return branch.next.isEmpty(); });
    return list;
}

} // namespace

QString help() {
    QString text = u"Drives a running Fendrel.\n\nusage: fendrelctl [--json] COMMAND\n\n"_s;
    qsizetype width = 0;
    for (const Command& command : shown())
        width = qMax(width, usage(command).size());
    for (const Command& command : shown())
        text += u"  "_s + usage(command).leftJustified(width + 2) + command.help + u'\n';
    text += u"\n  --json     print the answer as JSON\n  --help     print this\n  --version  print the version\n\n"
            "Exit status: 0 done, 2 unknown command or bad value, 3 Fendrel is not running.\n"_s;
    return text;
}

QString manualPage() {
    QString text = uR"(.TH FENDRELCTL 1 "" "Fendrel )"_s + QStringLiteral(FENDREL_VERSION) + uR"("
.SH NAME
fendrelctl \- drive a running Fendrel
.SH SYNOPSIS
.B fendrelctl
.RI [ \-\-json ]
.I COMMAND
.SH DESCRIPTION
Sends one command to the Fendrel of this user through a socket that only the user can reach, and prints its answer:
plain text, or JSON with
.BR \-\-json .
.SH COMMANDS
)"_s;
    for (const Command& command : shown()) {
        text += u".TP\n.B "_s + roff(usage(command)) + u'\n' + roff(command.help) + u'\n';
        for (const Option& option : command.options)
            text += u"With \\fB"_s + roff(u"--"_s + option.name) + u"\\fR, "_s + roff(option.help) + u".\n"_s;
    }
    text += uR"(.SH EXIT STATUS
.TP
.B 0
The command was done.
.TP
.B 2
The command is unknown or a value is bad; one line on standard error says why.
.TP
.B 3
Fendrel is not running.
.SH FILES
.TP
.I $XDG_DATA_HOME/Fendrel/control.sock
The socket. It carries one JSON object per line.
.SH EXAMPLES
.nf
fendrelctl switch building
fendrelctl focus start \-\-for 25m
fendrelctl watch
.fi
)"_s;
    return text;
}

QString bashCompletion() {
    QString text = uR"(# bash completion for fendrelctl; made from its table of commands
_fendrelctl() {
    local current=${COMP_WORDS[COMP_CWORD]} typed="${COMP_WORDS[*]:1:COMP_CWORD-1}"
    case "$typed" in
)"_s;
    QList<Branch> list = branches();
    // A pattern with a star would take what a longer beginning without one is for.
    std::ranges::stable_sort(list, {}, [](const Branch& branch) { return branch.words.count(u'*'); });
    for (const Branch& branch : list) {
        QString pattern = branch.words;
        pattern.replace(u" "_s, u"\\ "_s);
        text += u"    "_s + (pattern.isEmpty() ? u"''"_s : pattern) + u") COMPREPLY=($(compgen -W \""_s +
                branch.next.join(u' ') + u"\" -- \"$current\")) ;;\n"_s;
    }
    return text + u"    esac\n}\ncomplete -F _fendrelctl fendrelctl\n"_s;
}

QString zshCompletion() {
    // zsh runs bash completions as they are.
    return u"#compdef fendrelctl\nautoload -U +X bashcompinit && bashcompinit\n"_s + bashCompletion() +
           u"_bash_complete -o default -F _fendrelctl\n"_s;
}

QString fishCompletion() {
    QString text = u"# fish completion for fendrelctl; made from its table of commands\n"
                   "complete -c fendrelctl -f\n"_s;
    for (const Command& command : shown()) {
        const QStringList words = command.name.split(u' ');
        const QString begun = u"__fish_seen_subcommand_from "_s;
        if (words.size() == 1) {
            text += u"complete -c fendrelctl -n __fish_use_subcommand -a %1 -d \"%2\"\n"_s.arg(words[0], command.help);
        } else {
            text += u"complete -c fendrelctl -n __fish_use_subcommand -a %1\n"_s.arg(words[0]);
            text += u"complete -c fendrelctl -n '%1%2; and not %1%3' -a %3 -d \"%4\"\n"_s.arg(begun, words[0], words[1],
                                                                                              command.help);
        }
        for (const Option& option : command.options) {
            text += u"complete -c fendrelctl -n '%1%2' -l %3"_s.arg(begun, words.last(), option.name);
            text += option.takes == Takes::nothing ? u"\n"_s : u" -x -a \"%1\"\n"_s.arg(candidates(option.takes));
        }
        if (!command.parameters.isEmpty() && command.parameters.first().takes == Takes::file) {
            text += u"complete -c fendrelctl -n '%1%2' -F\n"_s.arg(begun, words.last());
        } else if (!command.parameters.isEmpty()) {
            QString values = candidates(command.parameters.first().takes);
            values.replace(u"$("_s, u"("_s);
            if (!values.isEmpty())
                text += u"complete -c fendrelctl -n '%1%2' -a \"%3\"\n"_s.arg(begun, words.last(), values);
        }
    }
    return text;
}

} // namespace fendrel::control::Documents
