#include "Modes/NoteQuestion.h"

#include "Base/PromptText.h"

namespace fendrel::NoteQuestion {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostTitles = 40;
constexpr int titleLength = 120;
constexpr qsizetype mostWords = 12;
constexpr int noteLength = 120;

} // namespace

Question about(const QStringList& titles) {
    QStringList lines;
    for (const QString& title : titles.first(qMin(titles.size(), mostTitles)))
        lines.append(promptText::first(promptText::line(title), titleLength));
    return {
        .instructions = u"From the window and page titles someone had open, say in at most 12 words what they were "
                        "working on, like: Drafting the launch post; reading Stripe's webhook docs. No preamble."_s,
        .prompt = lines.join(u'\n'),
        .schemaName = u"Note"_s,
    };
}

std::optional<QString> note(const LanguageModel::Answer& answer) {
    // A model that says more than it was asked for says it on further lines, or without an end.
    const QString line = promptText::line(answer.value({}).trimmed().section(u'\n', 0, 0)).simplified();
    QString note = line.section(u' ', 0, mostWords - 1);
    note = promptText::first(note, noteLength);
    if (note.isEmpty())
        return {};
    return note == line ? note : note + u'…';
}

} // namespace fendrel::NoteQuestion
