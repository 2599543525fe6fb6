#include "Platform/Linux/ModelServer/ModelServerText.h"

#include <QRegularExpression>

namespace fendrel::ModelServerText {

using namespace Qt::StringLiterals;

namespace {

constexpr char32_t zeroWidthNonJoiner = 0x200C, zeroWidthJoiner = 0x200D; // some scripts and emoji need them

/// What stands for a character; 0: nothing.
char32_t replacement(char32_t character) {
    if (character == U'\n' || character == zeroWidthNonJoiner || character == zeroWidthJoiner)
        return character;
    if (character == U'\t')
        return U' ';
    switch (QChar::category(character)) {
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return U' ';
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
        return 0;
    default:
        return character == QChar::ReplacementCharacter ? 0 : character; // a lone surrogate has become one
    }
}

} // namespace

QString plain(const QString& text) {
    const auto characters = text.toUcs4();
    QList<char32_t> kept;
    kept.reserve(characters.size());
    for (const auto character : characters) {
        if (const char32_t replaced = replacement(character); replaced != 0)
            kept.append(replaced);
    }
    return QString::fromUcs4(kept.constData(), kept.size());
}

QString untrusted(const QString& text) {
    // Servers read <|im_end|>, </s>, <end_of_turn> or [/INST] in a message as the mark itself.
    static const QRegularExpression marks(u"(<(?=[|\uFF5C/a-zA-Z])|\\[(?=/?[A-Z_]+\\]))"_s);
    return plain(text).replace(marks, u"\\1 "_s);
}

} // namespace fendrel::ModelServerText
