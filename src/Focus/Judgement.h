#pragma once

#include "Base/EnumNames.h"

#include <QObject>
#include <QString>

#include <optional>
#include <variant>

namespace fendrel::judgement {
Q_NAMESPACE

/// How sure a verdict is.
enum class Certainty { certain, likely, unsure };
Q_ENUM_NS(Certainty)

/// Where a verdict came from: the modes' own lists, the language model, or the user.
enum class Source { rule, model, you };
Q_ENUM_NS(Source)

} // namespace fendrel::judgement

namespace fendrel {

using judgement::Certainty;
using judgement::Source;

/// What gets judged: an application with the title of its window, or a site with the title of its page.
struct AppSubject {
    QString bundleID{};
    QString name{};
    std::optional<QString> title{};
    bool operator==(const AppSubject&) const = default;
};

struct SiteSubject {
    QString host{};
    QString title{};
    bool operator==(const SiteSubject&) const = default;
};

using Subject = std::variant<AppSubject, SiteSubject>;

/// What answers are remembered under: all windows of an application share one answer, and all pages of a site.
inline const QString& key(const Subject& subject) {
    if (const auto* app = std::get_if<AppSubject>(&subject))
        return app->bundleID;
    return std::get<SiteSubject>(subject).host;
}

struct Verdict {
    std::optional<QString> modeID{}; ///< nothing: it belongs to no mode
    Certainty certainty{};
    QString what{}; ///< the kind of thing on screen in a few words, else the application's name or the host
    Source source{};
    bool operator==(const Verdict&) const = default;
};

struct Judgement {
    Subject subject{};
    std::optional<Verdict> verdict{}; ///< nothing while the question is under way
    bool operator==(const Judgement&) const = default;
};

} // namespace fendrel
