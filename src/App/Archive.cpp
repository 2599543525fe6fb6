#include "App/Archive.h"

#include "Base/EnumNames.h"
#include "Modes/SiteName.h"
#include "Ports/StoredValueJson.h"
#include "Widgets/DockWidget.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr auto format = "Fendrel backup"_L1;
constexpr int version = 1;
constexpr qsizetype longestName = 100;

QString damaged() {
    return QCoreApplication::translate("Archive", "This backup is damaged, and can't be read.");
}

QJsonObject toJson(const Mode& mode) {
    return {{u"id"_s, mode.id},
            {u"name"_s, mode.name},
            {u"symbol"_s, mode.symbol},
            {u"tint"_s, enumName(mode.tint)},
            {u"apps"_s, QJsonArray::fromStringList(mode.apps)},
            {u"sites"_s, QJsonArray::fromStringList(mode.sites)},
            {u"widgets"_s, QJsonArray::fromStringList(mode.widgets)},
            {u"entryDelay"_s, mode.entryDelay.count()},
            {u"dailyBudget"_s, mode.dailyBudget.count()}};
}

/// What it reads of an untrusted file, and how much of that it had to leave out.
class Reading {
public:
    QList<Mode> modes(const QJsonArray& array) {
        QList<Mode> modes;
        QSet<QString> ids;
        for (const auto& item : array) {
            const auto mode = this->mode(item.toObject());
            if (mode && modes.size() < Archive::mostModes && !ids.contains(mode->id)) {
                ids.insert(mode->id);
                modes.append(*mode);
            } else {
                ++m_skipped;
            }
        }
        return modes;
    }

    QHash<QString, std::optional<StoredValue>> settings(const QJsonObject& object,
                                                        const QHash<QString, StoredValue>& known) {
        QHash<QString, std::optional<StoredValue>> settings;
        for (auto member = object.begin(); member != object.end(); ++member) {
            const auto like = known.constFind(member.key());
            const auto value = StoredValueJson::decode(member.value());
            if (like != known.constEnd() && (member.value().isNull() || (value && value->index() == like->index())))
                settings.insert(member.key(), value);
            else
                ++m_skipped;
        }
        return settings;
    }

    LearnedAnswers answers(const QJsonObject& object) {
        LearnedAnswers answers = VerdictCache::decode(object);
        if (answers.size() > Archive::mostAnswers) {
            QStringList keys = answers.keys();
            std::ranges::nth_element(keys, keys.begin() + Archive::mostAnswers, std::ranges::greater{},
                                     [&](const QString& key) { return answers[key].date; });
            for (const QString& key : keys.mid(Archive::mostAnswers))
                answers.remove(key);
        }
        m_skipped += object.size() - answers.size();
        return answers;
    }

    qsizetype skipped() const { return m_skipped; }

private:
    std::optional<Mode> mode(const QJsonObject& object) {
        const Mode mode{.id = object[u"id"].toString(),
                        .name = object[u"name"].toString().simplified().left(longestName),
                        .symbol = object[u"symbol"].toString(),
                        .tint = enumValue<Tint>(object[u"tint"].toString()).value_or(Tint::graphite),
                        .apps = texts(object[u"apps"], [](const QString& app) { return std::optional(app); }),
                        .sites = texts(object[u"sites"], [](const QString& site) { return siteName(site); }),
                        .entryDelay = seconds(object[u"entryDelay"]),
                        .widgets = texts(object[u"widgets"],
                                         [](const QString& widget) {
                                             return enumValue<DockWidget>(widget) ? std::optional(widget)
                                                                                  : std::nullopt;
                                         }),
                        .dailyBudget = seconds(object[u"dailyBudget"])};
        if (mode.id.isEmpty() || mode.name.isEmpty())
            return {};
        return mode;
    }

    template<class Normal>
    QStringList texts(const QJsonValue& value, Normal normal) {
        QStringList texts;
        for (const auto& item : value.toArray()) {
            const QString text = item.toString();
            const auto sound = text.isEmpty() ? std::nullopt : normal(text);
            if (!sound)
                ++m_skipped;
            else if (!texts.contains(*sound))
                texts.append(*sound);
        }
        return texts;
    }

    static Seconds seconds(const QJsonValue& value) {
        constexpr double day = 86'400;
        return Seconds(std::clamp(value.toDouble(), 0.0, day));
    }

    qsizetype m_skipped = 0;
};

} // namespace

QByteArray Archive::encode(WallTime date) const {
    QJsonArray modeList;
    for (const Mode& mode : modes)
        modeList.append(toJson(mode));
    QJsonObject settingsObject;
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        settingsObject.insert(setting.key(), *setting ? StoredValueJson::encode(**setting) : QJsonValue());
    const auto text = [](const auto& part) { return QJsonDocument(part).toJson(); };
    // Put together as text, so that what it is stands first and many answers are not sorted.
    return "{\"format\":\"" + QByteArray(format.data(), format.size()) +
           "\",\"version\":" + QByteArray::number(version) + ",\"date\":\"" +
           toDateTime(date).toString(Qt::ISODate).toLatin1() + "\",\n\"modes\":" + text(modeList) +
           ",\"settings\":" + text(settingsObject) + ",\"answers\":" + VerdictCache::encode(answers) + "}\n";
}

Result<Archive, QString> Archive::decode(const QByteArray& file, const QHash<QString, StoredValue>& settings) {
    using Answer = Result<Archive, QString>;
    const QJsonObject object = QJsonDocument::fromJson(file).object();
    if (object.isEmpty() && file.left(64).contains(format.data()))
        return Answer::failure(damaged());
    if (object[u"format"] != format)
        return Answer::failure(QCoreApplication::translate("Archive", "This file is not a Fendrel backup."));
    if (object[u"version"].toInt() > version)
        return Answer::failure(QCoreApplication::translate(
            "Archive", "This backup was made by a newer Fendrel. Update this one, then import it again."));
    Reading reading;
    Archive archive{.modes = reading.modes(object[u"modes"].toArray()),
                    .settings = reading.settings(object[u"settings"].toObject(), settings),
                    .answers = reading.answers(object[u"answers"].toObject()),
                    .skipped = reading.skipped()};
    const bool isWhole = object[u"version"].toInt() == version && !archive.modes.isEmpty() &&
                         object[u"settings"].isObject() && object[u"answers"].isObject();
    if (!isWhole)
        return Answer::failure(damaged());
    return archive;
}

} // namespace fendrel
