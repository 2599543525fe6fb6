#include "UI/WordSearch.h"

#include <QRegularExpression>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Texts compare equal when they differ in case and accents only.
QString folded(const QString& text) {
    QString plain;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD)) {
        if (!character.isMark())
            plain.append(character);
    }
    return plain.toCaseFolded();
}

const QRegularExpression& betweenWords() {
    static const QRegularExpression pattern(uR"([^\p{L}\p{N}\p{M}]+)"_s);
    return pattern;
}

} // namespace

QStringList foldedWords(const QString& text) {
    return folded(text).split(betweenWords(), Qt::SkipEmptyParts);
}

bool eachBeginsOne(const QStringList& wanted, const QStringList& words) {
    return std::ranges::all_of(wanted, [&](const QString& beginning) {
        return std::ranges::any_of(words, [&](const QString& word) { return word.startsWith(beginning); });
    });
}

bool eachIsIn(const QStringList& wanted, const QString& text) {
    return std::ranges::all_of(wanted, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

QString markedText(const QString& text, const QString& query) {
    const QStringList wanted = foldedWords(query);
    QString marked;
    qsizetype done = 0;
    const auto append = [&](qsizetype end, bool isWord) {
        const QString part = text.mid(done, end - done);
        const QString word = folded(part);
        const bool isFound =
            isWord && std::ranges::any_of(wanted, [&](const QString& each) { return word.startsWith(each); });
        marked += isFound ? u"<b>"_s + part.toHtmlEscaped() + u"</b>"_s : part.toHtmlEscaped();
        done = end;
    };
    auto gaps = betweenWords().globalMatch(text);
    while (gaps.hasNext()) {
        const auto gap = gaps.next();
        append(gap.capturedStart(), true);
        append(gap.capturedEnd(), false);
    }
    append(text.size(), true);
    return marked;
}

} // namespace fendrel
