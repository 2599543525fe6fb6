#include "Platform/Linux/Documents/TitledFile.h"

#include <algorithm>
#include <tuple>

namespace fendrel {

namespace {

/// Whether a name stands somewhere in the text and is not part of a longer one.
bool stands(const QString& name, const QString& text) {
    const auto belongsToName = [&](qsizetype at) {
        if (at < 0 || at >= text.size())
            return false;
        const QChar unit = text[at];
        return unit.isLetterOrNumber() || unit == u'.' || unit == u'_' || unit == u'-';
    };
    for (qsizetype at = text.indexOf(name); at >= 0; at = text.indexOf(name, at + 1)) {
        if (!belongsToName(at - 1) && !belongsToName(at + name.size()))
            return true;
    }
    return false;
}

} // namespace

std::optional<QString> titledFile(const QString& title, const QStringList& files) {
    std::optional<QString> best;
    std::tuple<qsizetype, bool, bool> bestFit;
    for (const QString& file : files) {
        const QString name = file.section(u'/', -1);
        if (name.isEmpty() || !stands(name, title))
            continue;
        const QString folder = file.section(u'/', -2, -2);
        const std::tuple fit(name.size(), stands(folder + u'/' + name, title), stands(folder, title));
        if (!best || fit > bestFit) {
            best = file;
            bestFit = fit;
        }
    }
    return best;
}

} // namespace fendrel
