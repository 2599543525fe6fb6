#include "Focus/VerdictCache.h"

#include "Base/JsonFile.h"
#include "Base/Worker.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringBuilder>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// The text as it stands in a JSON string (RFC 8259, section 7); nearly always as it is.
QString escaped(const QString& text) {
    const auto isPlain = [](QChar unit) { return unit >= u' ' && unit != u'"' && unit != u'\\'; };
    if (std::ranges::all_of(text, isPlain))
        return text;
    QString result;
    for (const QChar unit : text) {
        if (isPlain(unit))
            result += unit;
        else if (unit < u' ')
            result += u"\\u%1"_s.arg(unit.unicode(), 4, 16, QChar(u'0'));
        else
            result.append(u'\\').append(unit);
    }
    return result;
}

} // namespace

VerdictCache::VerdictCache(const QString& folder, Worker& disk) : m_path(folder + u"/Verdicts.json"_s), m_disk(disk) {
    const auto file = JsonFile::read(m_path);
    if (file)
        m_answers = decode(*file);
    else if (file.error() == JsonFile::ReadError::unreadable)
        JsonFile::keepAside(m_path);
}

std::optional<Verdict> VerdictCache::find(const QString& key) const {
    const auto found = m_answers.constFind(key);
    if (found == m_answers.constEnd())
        return {};
    return found->verdict;
}

void VerdictCache::insert(const QString& key, const LearnedAnswer& answer) {
    m_answers.insert(key, answer);
}

void VerdictCache::remove(const QString& key) {
    m_answers.remove(key);
}

void VerdictCache::save() {
    // The copy is shared, so the main thread pays for it only if an answer comes in while it is being written.
    m_disk.post(m_path, [path = m_path, answers = m_answers] { JsonFile::write(path, encode(answers)); });
}

// Written by hand: a Qt JSON object sorts its members as they come, and takes many times as long.
QByteArray VerdictCache::encode(const LearnedAnswers& answers) {
    const auto name = [](auto value) { return QLatin1StringView(enumKey(value)); };
    QString json;
    json.reserve(answers.size() * 160);
    json += u'{';
    for (auto answer = answers.begin(); answer != answers.end(); ++answer) {
        const Verdict& verdict = answer->verdict;
        if (json.size() > 1)
            json += u",\n"; // a line for each, so that a person can look into the file
        json += u'"' % escaped(answer.key()) % u"\":{\"modeID\":";
        if (verdict.modeID)
            json += u'"' % escaped(*verdict.modeID) % u'"';
        else
            json += u"null";
        json += u",\"certainty\":\"" % name(verdict.certainty) % u"\",\"what\":\"" % escaped(verdict.what) %
                u"\",\"source\":\"" % name(verdict.source) % u'"';
        // Beside what makes a verdict: readers pass over members that they don't know.
        if (answer->date)
            json += u",\"date\":\"" % toDateTime(*answer->date).toString(Qt::ISODateWithMs) % u'"';
        json += u'}';
    }
    return json.append(u'}').toUtf8();
}

LearnedAnswers VerdictCache::decode(const QJsonObject& object) {
    LearnedAnswers answers;
    answers.reserve(object.size());
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QJsonObject stored = member.value().toObject();
        const QJsonValue modeID = stored[u"modeID"];
        const QJsonValue what = stored[u"what"];
        const auto certainty = enumValue<Certainty>(stored[u"certainty"].toString());
        const auto source = enumValue<Source>(stored[u"source"].toString());
        const bool isModeSound = modeID.isUndefined() || modeID.isNull() || modeID.isString();
        if (!isModeSound || !what.isString() || !certainty || !source)
            continue;
        const auto date = QDateTime::fromString(stored[u"date"].toString(), Qt::ISODateWithMs);
        answers.insert(member.key(),
                       {.verdict = {.modeID = modeID.isString() ? std::optional(modeID.toString()) : std::nullopt,
                                    .certainty = *certainty,
                                    .what = what.toString(),
                                    .source = *source},
                        .date = date.isValid() ? std::optional(toWallTime(date)) : std::nullopt});
    }
    return answers;
}

} // namespace fendrel
