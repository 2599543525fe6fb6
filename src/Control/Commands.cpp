#include "Control/Commands.h"

#include <algorithm>

namespace fendrel::control {

using namespace Qt::StringLiterals;

const QList<Command>& commands() {
    using Count = Parameter::Count;
    static const Parameter mode{.name = u"MODE"_s, .takes = Takes::mode};
    static const Parameter app{.name = u"APP"_s, .takes = Takes::app};
    static const Parameter site{.name = u"SITE"_s, .takes = Takes::text};
    static const Parameter key{.name = u"KEY"_s, .takes = Takes::setting};
    static const Parameter service{.name = u"SERVICE"_s, .takes = Takes::service};
    static const Parameter file{.name = u"FILE"_s, .takes = Takes::file};
    static const QList<Command> table{
        {.name = u"status"_s, .help = u"Show the mode, the focus session, what is in front and how it is judged."_s},
        {.name = u"watch"_s, .help = u"Show the status, then one JSON line for every change."_s, .isStream = true},
        {.name = u"modes"_s, .help = u"List the modes, in order; a star marks the current one."_s},
        {.name = u"switch"_s,
         .parameters = {mode},
         .help = u"Ask for a mode; asking again for one that is waited for cuts the wait by 3 seconds."_s},
        {.name = u"focus start"_s,
         .options = {{.name = u"for"_s,
                      .takes = Takes::duration,
                      .help = u"end by itself, for example after 25m or 1h30m"_s}},
         .help = u"Start a focus session, open-ended unless a duration is given."_s},
        {.name = u"focus stop"_s, .help = u"End the focus session."_s},
        {.name = u"gate"_s,
         .parameters = {{.name = u"ANSWER"_s, .takes = Takes::gateAnswer}},
         .help = u"Answer the gate: stay, switch, allow-once or add."_s},
        {.name = u"correct"_s,
         .parameters = {{.name = u"MODE|none"_s, .takes = Takes::mode}},
         .help = u"Tell which mode the thing in front belongs to."_s},
        {.name = u"explain"_s, .help = u"Say why the thing in front was judged as it was."_s},
        {.name = u"suggestion"_s,
         .parameters = {{.name = u"ANSWER"_s, .takes = Takes::text}},
         .help = u"Answer the suggestion of another mode: accept or dismiss."_s},
        {.name = u"context list"_s, .help = u"List what was open in each mode when you left it."_s},
        {.name = u"context restore"_s,
         .parameters = {{.name = u"MODE"_s, .takes = Takes::mode, .count = Count::optional}},
         .help = u"Open again what was open in a mode, or what is offered."_s},
        {.name = u"context dismiss"_s, .help = u"Put the offer away, and what is told of documents that are gone."_s},
        {.name = u"context forget"_s,
         .parameters = {{.name = u"MODE"_s, .takes = Takes::mode, .count = Count::optional}},
         .options = {{.name = u"all"_s, .takes = Takes::nothing, .help = u"forget that of every mode"_s}},
         .help = u"Forget what was open in a mode."_s},
        {.name = u"held"_s, .parameters = {mode}, .help = u"Show the newest messages that are held for a mode."_s},
        {.name = u"alert"_s,
         .parameters = {{.name = u"ANSWER"_s, .takes = Takes::text}},
         .help = u"Answer the alert of an urgent message: open or dismiss."_s},
        {.name = u"mode add-app"_s, .parameters = {mode, app}, .help = u"Add an application to a mode."_s},
        {.name = u"mode remove-app"_s, .parameters = {mode, app}, .help = u"Remove an application from a mode."_s},
        {.name = u"mode add-site"_s, .parameters = {mode, site}, .help = u"Add a web site to a mode."_s},
        {.name = u"mode remove-site"_s, .parameters = {mode, site}, .help = u"Remove a web site from a mode."_s},
        {.name = u"settings list"_s, .help = u"List all settings with their values."_s},
        {.name = u"settings get"_s, .parameters = {key}, .help = u"Show a setting."_s},
        {.name = u"settings set"_s,
         .parameters = {key, {.name = u"VALUE"_s, .takes = Takes::text}},
         .help = u"Change a setting."_s},
        {.name = u"settings reset"_s, .parameters = {key}, .help = u"Let the default of a setting apply again."_s},
        {.name = u"settings open"_s,
         .parameters = {{.name = u"PANE"_s, .takes = Takes::text}},
         .help = u"Open the settings window at a pane."_s},
        {.name = u"modes open"_s,
         .parameters = {{.name = u"MODE"_s, .takes = Takes::mode, .count = Count::optional}},
         .help = u"Open the window of the modes, at one of them."_s},
        {.name = u"dock focus"_s,
         .help = u"Lead the keyboard to the dock: arrows move, Return presses, Escape leaves."_s},
        {.name = u"dock replace"_s,
         .parameters = {{.name = u"on|off"_s, .takes = Takes::text}},
         .help = u"Hide the desktop's own dock or panel and take its place, or give it back."_s},
        {.name = u"undo"_s,
         .help = u"Take back the last change of a mode that was made in the dock, while it is offered."_s},
        {.name = u"onboarding show"_s, .help = u"Show the first run: where it was left, or once more to add modes."_s},
        {.name = u"onboarding finish"_s,
         .parameters = {{.name = u"TEMPLATE"_s, .takes = Takes::text, .count = Count::any}},
         .help = u"Finish the first run with these modes, or with the usual ones."_s},
        {.name = u"answers"_s,
         .parameters = {{.name = u"WORD"_s, .takes = Takes::text, .count = Count::any}},
         .help = u"List the newest thousand learned answers, or of those that have all the words."_s},
        {.name = u"answers forget"_s,
         .parameters = {{.name = u"KEY"_s, .takes = Takes::text, .count = Count::optional}},
         .options = {{.name = u"all"_s, .takes = Takes::nothing, .help = u"forget every answer"_s}},
         .help = u"Forget a learned answer; its key is what the list begins with."_s},
        {.name = u"export"_s,
         .parameters = {file},
         .help = u"Write modes, settings and learned answers to a file, without any keys of accounts."_s},
        {.name = u"import"_s,
         .parameters = {file},
         .help = u"Replace modes, settings and learned answers by those of such a file."_s},
        {.name = u"import undo"_s, .help = u"Bring back what was there before the last import of this run."_s},
        {.name = u"account list"_s, .help = u"List the services that widgets can use, and which are connected."_s},
        {.name = u"account set"_s,
         .parameters = {service},
         .help = u"Connect a service with the key that is typed or comes on standard input."_s,
         .mayWait = true,
         .takesSecret = true},
        {.name = u"account remove"_s,
         .parameters = {service},
         .help = u"Take the key of a service out of the keyring."_s,
         .mayWait = true},
        {.name = u"widgets"_s, .help = u"List the kinds of widgets, the modes that have them, and what each needs."_s},
        {.name = u"widget"_s,
         .parameters = {{.name = u"NAME"_s, .takes = Takes::widget}},
         .help = u"Show the data of a widget as it was fetched last, without any keys of accounts."_s},
        {.name = u"quit"_s, .help = u"Quit Fendrel."_s},
        {.name = u"activate"_s,
         .parameters = {{.name = u"PANE"_s, .takes = Takes::text, .count = Count::optional}},
         .isInternal = true},
#ifdef FENDREL_TIME_TRAVEL
        {.name = u"debug skip"_s,
         .parameters = {{.name = u"DURATION"_s, .takes = Takes::duration}},
         .isInternal = true},
#endif
    };
    return table;
}

const Command* command(const QString& name) {
    const auto found = std::ranges::find(commands(), name, &Command::name);
    return found == commands().end() ? nullptr : &*found;
}

const QStringList& gateAnswers() {
    static const QStringList answers{u"stay"_s, u"switch"_s, u"allow-once"_s, u"add"_s};
    return answers;
}

Parsed parse(const QStringList& words) {
    const Command* found = nullptr;
    qsizetype length = 0;
    for (qsizetype count = 1; count <= qMin<qsizetype>(2, words.size()); ++count) {
        if (const Command* candidate = command(words.first(count).join(u' '))) {
            found = candidate;
            length = count;
        }
    }
    if (!found) {
        return {.error = words.isEmpty() ? u"a command is missing; see fendrelctl --help"_s
                                         : u"unknown command '%1'; see fendrelctl --help"_s.arg(words.join(u' '))};
    }
    Request request{.command = found->name};
    bool areOptionsOver = false;
    for (qsizetype index = length; index < words.size(); ++index) {
        const QString& word = words[index];
        if (areOptionsOver || !word.startsWith("--"_L1)) {
            request.arguments.append(word);
        } else if (word.size() == 2) {
            areOptionsOver = true;
        } else {
            const QString name = word.mid(2).section(u'=', 0, 0);
            const auto option = std::ranges::find(found->options, name, &Option::name);
            if (option == found->options.end())
                return {.error = u"%1 takes no option --%2"_s.arg(found->name, name)};
            if (option->takes == Takes::nothing && word.contains(u'='))
                return {.error = u"--%1 takes no value"_s.arg(name)};
            if (option->takes == Takes::nothing)
                request.options.insert(name, {});
            else if (word.contains(u'='))
                request.options.insert(name, word.section(u'=', 1));
            else if (index + 1 < words.size())
                request.options.insert(name, words[++index]);
            else
                return {.error = u"--%1 needs a value"_s.arg(name)};
        }
    }
    const auto least = std::ranges::count(found->parameters, Parameter::Count::one, &Parameter::count);
    const bool takesAny =
        std::ranges::find(found->parameters, Parameter::Count::any, &Parameter::count) != found->parameters.end();
    const auto given = request.arguments.size();
    if (given < least || (!takesAny && given > found->parameters.size()))
        return {.error = u"usage: fendrelctl "_s + usage(*found)};
    return {.request = request};
}

QString usage(const Command& command) {
    QStringList words{command.name};
    for (const Option& option : command.options) {
        words.append(option.takes == Takes::nothing    ? u"[--%1]"_s.arg(option.name)
                     : option.takes == Takes::duration ? u"[--%1 DURATION]"_s.arg(option.name)
                                                       : u"[--%1 VALUE]"_s.arg(option.name));
    }
    for (const Parameter& parameter : command.parameters) {
        switch (parameter.count) {
        case Parameter::Count::one:
            words.append(parameter.name);
            break;
        case Parameter::Count::optional:
            words.append(u'[' + parameter.name + u']');
            break;
        case Parameter::Count::any:
            words.append(u'[' + parameter.name + u"...]"_s);
            break;
        }
    }
    return words.join(u' ');
}

} // namespace fendrel::control
