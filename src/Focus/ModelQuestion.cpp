#include "Focus/ModelQuestion.h"

#include "Base/PromptText.h"

namespace fendrel::ModelQuestion {

using namespace Qt::StringLiterals;

namespace {

constexpr int titleLength = 120;
constexpr qsizetype namesPerMode = 8;

} // namespace

QString instructions(const QList<Mode>& modes, const std::function<QString(const QString&)>& appName) {
    QStringList lines;
    for (const Mode& mode : modes) {
        QStringList names;
        for (const QString& bundleID : mode.apps) {
            // A dot means that the application has no name here, only its identifier, which would tell the model
            // nothing.
            if (const QString name = appName(bundleID); !name.contains(u'.'))
                names.append(name);
        }
        lines.append(u"- %1 (%2): Apps: %3. Sites: %4"_s.arg(
            mode.id, mode.name, names.first(qMin(namesPerMode, names.size())).join(u", "),
            mode.sites.first(qMin(namesPerMode, mode.sites.size())).join(u", ")));
    }
    return u"You sort what's on a Mac screen into the user's modes. Judge the window title or page, not just the "
           "app.\nModes:\n"_s +
           lines.join(u'\n') + u"\nMusic, video, games and shopping are none unless a mode lists them."_s;
}

QString prompt(const Subject& subject) {
    if (const auto* app = std::get_if<AppSubject>(&subject)) {
        QString text = u"App: "_s + promptText::line(app->name);
        if (app->title)
            text += u"\nWindow: "_s + promptText::line(promptText::first(*app->title, titleLength));
        return text;
    }
    const auto& site = std::get<SiteSubject>(subject);
    return u"Site: "_s + site.host + u"\nTitle: "_s + promptText::line(promptText::first(site.title, titleLength));
}

QList<SchemaProperty> schema(const QStringList& modeIDs) {
    return {
        {.name = u"what"_s,
         .description = u"The kind of thing on screen in 2 to 4 words, not the title itself. Examples: API docs, Video "
                        "feed, Music player, Online shopping, Essay draft"_s},
        {.name = u"mode"_s,
         .kind = SchemaProperty::Kind::choice,
         .typeName = u"ModeID"_s,
         .description = u"The id of the mode it belongs to, or none"_s,
         .choices = modeIDs + QStringList{u"none"_s}},
        {.name = u"certainty"_s,
         .kind = SchemaProperty::Kind::choice,
         .typeName = u"Certainty"_s,
         .description = u"certain: clearly belongs. likely: probably. unsure: could be several modes, or the title "
                        "doesn't say"_s,
         .choices = {u"certain"_s, u"likely"_s, u"unsure"_s}},
    };
}

Verdict verdict(const LanguageModel::Answer& answer, const QStringList& modeIDs) {
    const QString mode = answer.value(u"mode"_s);
    return {.modeID = modeIDs.contains(mode) ? std::optional(mode) : std::nullopt,
            .certainty = enumValue<Certainty>(answer.value(u"certainty"_s)).value_or(Certainty::unsure),
            .what = answer.value(u"what"_s),
            .source = Source::model};
}

} // namespace fendrel::ModelQuestion
