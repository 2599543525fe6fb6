#include "UI/Settings/SettingsSearch.h"

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

QStringList wordsOf(const QString& text) {
    return folded(text).split(betweenWords(), Qt::SkipEmptyParts);
}

bool beginsOneOf(const QStringList& words, const QString& beginning) {
    return std::ranges::any_of(words, [&](const QString& word) { return word.startsWith(beginning); });
}

} // namespace

QList<SettingEntry> findSettings(const QList<SettingEntry>& entries, const QString& query) {
    const QStringList wanted = wordsOf(query);
    if (wanted.isEmpty())
        return {};
    QList<SettingEntry> inLabel;
    QList<SettingEntry> elsewhere;
    for (const SettingEntry& entry : entries) {
        const QStringList label = wordsOf(entry.label);
        const QStringList all = label + wordsOf(entry.words) + wordsOf(entry.help);
        const auto areAllIn = [&](const QStringList& words) {
            return std::ranges::all_of(wanted, [&](const QString& word) { return beginsOneOf(words, word); });
        };
        if (areAllIn(label))
            inLabel.append(entry);
        else if (areAllIn(all))
            elsewhere.append(entry);
    }
    return inLabel + elsewhere;
}

QString markedText(const QString& text, const QString& query) {
    const QStringList wanted = wordsOf(query);
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

QVariantList SettingsSearch::results() const {
    QVariantList list;
    for (const SettingEntry& entry : findSettings(settingsCatalog::entries(), m_query)) {
        list.append(QVariantMap{{u"setting"_s, entry.setting},
                                {u"pane"_s, entry.pane},
                                {u"name"_s, entry.label},
                                {u"paneName"_s, settingsCatalog::entry(entry.pane).label},
                                {u"label"_s, markedText(entry.label, m_query)},
                                {u"help"_s, markedText(entry.help, m_query)}});
    }
    return list;
}

} // namespace fendrel
