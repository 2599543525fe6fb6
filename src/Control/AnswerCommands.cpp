#include "Control/AnswerCommands.h"

#include "App/AppController.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace fendrel::control {

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype mostShown = 1000; // all of them would be too long a line
}

QJsonArray learnedAnswers(AppController& controller, const QStringList& words) {
    const LearnedAnswers& answers = controller.classifier().answers();
    QStringList keys;
    for (auto answer = answers.begin(); answer != answers.end(); ++answer) {
        const QString text = answer.key() + u' ' + answer->verdict.what + u' ' + answer->verdict.modeID.value_or(u""_s);
        const auto isIn = [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); };
        if (std::ranges::all_of(words, isIn))
            keys.append(answer.key());
    }
    std::ranges::sort(keys, [&](const QString& one, const QString& other) {
        const auto date = answers[one].date;
        const auto otherDate = answers[other].date;
        return date == otherDate ? one < other : date > otherDate;
    });
    QJsonArray list;
    for (const QString& key : keys.first(std::min(keys.size(), mostShown))) {
        const LearnedAnswer& answer = answers[key];
        const Verdict& verdict = answer.verdict;
        list.append(QJsonObject{
            {u"key"_s, key},
            {u"mode"_s, verdict.modeID ? QJsonValue(*verdict.modeID) : QJsonValue()},
            {u"certainty"_s, enumName(verdict.certainty)},
            {u"source"_s, enumName(verdict.source)},
            {u"what"_s, verdict.what},
            {u"date"_s, answer.date ? QJsonValue(toDateTime(*answer.date).toString(Qt::ISODateWithMs)) : QJsonValue()},
        });
    }
    return list;
}

CommandHandlers::Answer forgetAnswers(Classifier& classifier, const Request& request) {
    using Answer = CommandHandlers::Answer;
    const QString key = request.arguments.value(0);
    if (request.options.contains(u"all"_s) != key.isEmpty())
        return Answer::failure(u"usage: "_s + usage(*command(request.command)));
    if (!key.isEmpty() && !classifier.answers().contains(key))
        return Answer::failure(u"nothing is remembered of '%1'"_s.arg(key));
    classifier.forget(key.isEmpty() ? classifier.answers().keys() : QStringList{key});
    return QJsonValue();
}

} // namespace fendrel::control
