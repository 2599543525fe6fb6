#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel::control {

/// What a parameter or an option takes; completions are made from it.
enum class Takes { nothing, text, file, mode, app, setting, service, widget, gateAnswer, duration };

struct Parameter {
    QString name{};
    Takes takes{};
    enum class Count { one, optional, any } count{Count::one};
};

struct Option {
    QString name{}; ///< without the dashes
    Takes takes{};
    QString help{};
};

struct Command {
    QString name{}; ///< one or more words
    QList<Parameter> parameters{};
    QList<Option> options{};
    QString help{};     ///< one sentence
    bool isStream{};    ///< answers with lines until it is interrupted
    bool mayWait{};     ///< for the user, and then as long as that takes
    bool takesSecret{}; ///< on standard input, never as a word of the command line
    bool isInternal{};  ///< for the programs themselves: in no help
};

/// Under which a secret travels among the options.
inline const QString secretOption = QStringLiteral("secret");

/// Every command that the control socket takes: the one table that the server, `fendrelctl`, its manual page and its
/// shell completions are made from.
const QList<Command>& commands();

const Command* command(const QString& name);

/// The words that a gate's answer may be.
const QStringList& gateAnswers();

/// What a person typed, as a request. Options look like "--for 25m" or "--for=25m".
struct Request {
    QString command{};
    QStringList arguments{};
    QHash<QString, QString> options{};
};

/// The request that the words make, or the reason why they make none, as one line.
struct Parsed {
    std::optional<Request> request{};
    QString error{};
};
Parsed parse(const QStringList& words);

/// The form of a command in help texts: "focus start [--for DURATION]".
QString usage(const Command& command);

} // namespace fendrel::control
