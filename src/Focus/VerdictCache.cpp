#include "Focus/VerdictCache.h"

#include "Base/JsonFile.h"
#include "Base/Worker.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Appends a JSON string (RFC 8259, section 7).
void appendText(QByteArray& json, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    json += '"';
    const char* plain = bytes.begin(); // start of what needs no escape
    for (const char* byte = bytes.begin(); byte != bytes.end(); ++byte) {
        const bool isControl = static_cast<unsigned char>(*byte) < 0x20;
        if (!isControl && *byte != '"' && *byte != '\\')
            continue;
        json.append(plain, byte - plain);
        if (isControl)
            json += "\\u00" + QByteArray::number(static_cast<int>(*byte), 16).rightJustified(2, '0');
        else
            json.append('\\').append(*byte);
        plain = byte + 1;
    }
    json.append(plain, bytes.end() - plain);
    json += '"';
}

} // namespace

VerdictCache::VerdictCache(const QString& folder, Worker& disk)
    : m_path(folder + u"/Verdicts.json"_s), m_disk(disk) {
    const auto file = JsonFile::read(m_path);
    if (file)
        m_entries = decode(*file);
    else if (file.error() == JsonFile::ReadError::unreadable)
        JsonFile::keepAside(m_path);
}

std::optional<Verdict> VerdictCache::find(const QString& key) const {
    const auto found = m_entries.constFind(key);
    if (found == m_entries.constEnd())
        return {};
    return *found;
}

void VerdictCache::insert(const QString& key, const Verdict& verdict) {
    m_entries.insert(key, verdict);
}

void VerdictCache::remove(const QString& key) {
    m_entries.remove(key);
}

void VerdictCache::save() {
    // The copy is shared, so the main thread pays for it only if an answer comes in while it is being written.
    m_disk.post(m_path, [path = m_path, entries = m_entries] { JsonFile::write(path, encode(entries)); });
}

// Written by hand: a Qt JSON object sorts its members as they come, which for thousands of them takes ten times as long.
QByteArray VerdictCache::encode(const QHash<QString, Verdict>& entries) {
    QByteArray json;
    json.reserve(entries.size() * 128);
    json += '{';
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (json.size() > 1)
            json += ",\n"; // a line for each, so that a person can look into the file
        appendText(json, entry.key());
        json += R"(:{"modeID":)";
        if (entry->modeID)
            appendText(json, *entry->modeID);
        else
            json += "null";
        json.append(R"(,"certainty":")").append(enumKey(entry->certainty));
        json += R"(","what":)";
        appendText(json, entry->what);
        json.append(R"(,"source":")").append(enumKey(entry->source)).append("\"}");
    }
    return json + '}';
}

QHash<QString, Verdict> VerdictCache::decode(const QJsonObject& object) {
    QHash<QString, Verdict> entries;
    entries.reserve(object.size());
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QJsonObject stored = member.value().toObject();
        const QJsonValue modeID = stored[u"modeID"];
        const QJsonValue what = stored[u"what"];
        const auto certainty = enumValue<Certainty>(stored[u"certainty"].toString());
        const auto source = enumValue<Source>(stored[u"source"].toString());
        const bool isModeSound = modeID.isUndefined() || modeID.isNull() || modeID.isString();
        if (!isModeSound || !what.isString() || !certainty || !source)
            continue;
        entries.insert(member.key(), Verdict{
                                         .modeID = modeID.isString() ? std::optional(modeID.toString()) : std::nullopt,
                                         .certainty = *certainty,
                                         .what = what.toString(),
                                         .source = *source,
                                     });
    }
    return entries;
}

} // namespace fendrel
