#include "Platform/Linux/Notifications/NotificationText.h"

#include <QHash>
#include <QRegularExpression>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTitle = 500;
constexpr qsizetype longestBody = 4000;
constexpr qsizetype longestMarkup = 4 * longestBody;

QString bounded(QString text, qsizetype length) {
    text.remove(u'\0');
    if (text.size() > length)
        text.truncate(text[length].isLowSurrogate() ? length - 1 : length);
    return text.trimmed();
}

QString characterOf(const QString& entity) {
    static const QHash<QString, QString> named{{u"amp"_s, u"&"_s},   {u"lt"_s, u"<"_s},   {u"gt"_s, u">"_s},
                                               {u"quot"_s, u"\""_s}, {u"apos"_s, u"'"_s}, {u"nbsp"_s, u" "_s}};
    if (!entity.startsWith(u'#'))
        return named.value(entity.toLower());
    const bool isHexadecimal = entity.startsWith("#x"_L1, Qt::CaseInsensitive);
    const char32_t code = entity.mid(isHexadecimal ? 2 : 1).toUInt(nullptr, isHexadecimal ? 16 : 10);
    const bool isCharacter = code >= 0x20 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
    return isCharacter || code == U'\n' ? QString::fromUcs4(&code, 1) : QString();
}

QString replacementOf(const QRegularExpressionMatch& match) {
    if (match.hasCaptured(u"entity"_s)) {
        const QString character = characterOf(match.captured(u"entity"_s));
        return character.isEmpty() ? match.captured() : character;
    }
    const QString tag = match.captured(u"tag"_s).toLower();
    if (tag == "br"_L1 || (tag == "p"_L1 && match.captured().startsWith("</"_L1)))
        return u"\n"_s;
    if (tag != "img"_L1)
        return {};
    static const QRegularExpression description(u"\\balt\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)')"_s,
                                                QRegularExpression::CaseInsensitiveOption);
    const auto found = description.match(match.captured());
    return plainText(found.captured(1) + found.captured(2)); // which holds no tags, but entities
}

} // namespace

QString plainText(const QString& markup) {
    // A tag holds no "<", so that a text full of them is still read in one go.
    static const QRegularExpression special(
        u"</?(?<tag>b|i|u|s|a|p|br|img|em|strong|tt|code|span|font|div|big|small)"
        "(?:\\s[^<>]*)?/?>|&(?<entity>#\\d{1,7}|#[xX][0-9a-fA-F]{1,6}|[a-zA-Z]{2,8});"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QString source = bounded(markup, longestMarkup);
    QString text;
    qsizetype end = 0;
    for (auto matches = special.globalMatch(source); matches.hasNext();) {
        const auto match = matches.next();
        text += QStringView(source).sliced(end, match.capturedStart() - end);
        text += replacementOf(match);
        end = match.capturedEnd();
    }
    return text += QStringView(source).sliced(end);
}

QString boundedTitle(const QString& text) {
    return bounded(text, longestTitle);
}

QString boundedBody(const QString& text) {
    return bounded(text, longestBody);
}

} // namespace fendrel
