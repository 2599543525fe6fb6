#include "Messages/BreakThrough.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

BreakThrough::BreakThrough(const QStringList& words) {
    for (const QString& word : words) {
        if (word.isEmpty())
            continue;
        m_words.emplace_back(word, QRegularExpression(u"(?<!\\w)"_s + QRegularExpression::escape(word) + u"(?!\\w)"_s,
                                                      QRegularExpression::CaseInsensitiveOption |
                                                          QRegularExpression::UseUnicodePropertiesOption));
    }
}

std::optional<QString> BreakThrough::reason(const HeldMessage& message) const {
    const auto foundIn = [this](const QString& text) {
        return std::ranges::find_if(m_words, [&](const auto& word) { return word.second.match(text).hasMatch(); });
    };
    if (foundIn(message.title) != m_words.end())
        return u"from "_s + message.title;
    if (const auto word = foundIn(message.subtitle + u'\n' + message.body); word != m_words.end())
        return u"mentions "_s + word->first;
    return {};
}

} // namespace fendrel
