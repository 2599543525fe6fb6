#include "UI/Widgets/CardText.h"
#include "UI/Widgets/Cards.h"
#include "Widgets/Revenue/Money.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// As people call it: "claude-3-5-sonnet-20241022" is "Sonnet 3.5". What is named in another way stays as it is.
QString modelName(const QString& identifier) {
    static const QRegularExpression familyLast(u"^claude-(\\d+)(?:-(\\d{1,2}))?-([a-z]+)\\b"_s);
    static const QRegularExpression familyFirst(u"^claude-([a-z]+)-(\\d+)(?:-(\\d{1,2}))?\\b"_s);
    const auto named = [](const QString& family, const QString& major, const QString& minor) {
        return family.left(1).toUpper() + family.mid(1) + u' ' + major + (minor.isEmpty() ? QString() : u'.' + minor);
    };
    if (const auto match = familyFirst.match(identifier); match.hasMatch())
        return named(match.captured(1), match.captured(2), match.captured(3));
    if (const auto match = familyLast.match(identifier); match.hasMatch())
        return named(match.captured(3), match.captured(1), match.captured(2));
    return identifier == u"unknown"_s ? QCoreApplication::translate("Card", "Other models") : identifier;
}

QList<std::pair<QString, qint64>> byModel(const QMap<QString, qint64>& models) {
    QMap<QString, qint64> sums; // one model has several identifiers
    for (const auto& [identifier, tokens] : models.asKeyValueRange())
        sums[modelName(identifier)] += tokens;
    QList<std::pair<QString, qint64>> list;
    for (const auto& [name, tokens] : sums.asKeyValueRange())
        list.append({name, tokens});
    std::ranges::stable_sort(list, std::ranges::greater(), &std::pair<QString, qint64>::second);
    return list;
}

/// In few characters. Where the user's language has no short word for thousands, as people who count tokens write them.
QString shortTokens(qint64 count) {
    const QString text = shortText(count);
    return count < 10'000 || text != QLocale().toString(count)
               ? text
               : QCoreApplication::translate("Card", "%1K").arg(QLocale().toString((count + 500) / 1000));
}

void describeWindow(CardContent& card, const usage::Window& window, WallTime now) {
    using Hours = std::chrono::duration<double, std::ratio<3600>>;
    card.form = CardContent::Form::usage;
    card.gauge = std::clamp(Hours(now - window.start) / Hours(usage::Window::length), 0.0, 1.0);
    const QString used = shortTokens(window.tokens);
    //: Tokens used since the start of a window of time, and when a new one begins: "340K tokens until 7:00 PM"
    card.gaugeText = QCoreApplication::translate("Card", "%1 tokens until %2").arg(used, card::clock(window.end()));
    const Hours passed = std::max(Hours(now - window.start), Hours(5min)); // nothing can be told from less
    const QString pace = shortTokens(qRound64(static_cast<double>(window.tokens) / passed.count()));
    card.gaugeNote = QCoreApplication::translate("Card", "%1 an hour").arg(pace);
    card.gaugeParts = {used,
                       //: Tokens an hour, in few characters: "170K/h"
                       QCoreApplication::translate("Card", "%1/h").arg(pace),
                       //: When a window of time ends, in few characters: "→ 18:00"
                       QCoreApplication::translate("Card", "→ %1").arg(card::shortClock(window.end()))};
}

} // namespace

void describe(CardContent& card, const usage::Summary& summary, const QString& folder, WallTime now) {
    card.form = CardContent::Form::curve;
    if (!summary.hasLogs) {
        card.state = CardContent::State::empty;
        card.headline = QCoreApplication::translate("Card", "No Claude Code logs found");
        card.note = QCoreApplication::translate("Card", "Looked in %1").arg(folder);
        return;
    }
    const bool isOpen = summary.window && now < summary.window->end();
    if (summary.messagesToday == 0 && !isOpen) {
        card.state = CardContent::State::empty;
        card.headline = QCoreApplication::translate("Card", "Nothing used yet today");
        return;
    }
    card.headline = shortTokens(summary.tokensToday);
    card.caption = QCoreApplication::translate("Card", "tokens today");
    card.unit = QCoreApplication::translate("Card", "tokens");
    card.note = QCoreApplication::translate("Card", "%n reply(ies)", nullptr, summary.messagesToday);
    card.curve = card::dayCurve(QList<qint64>{0} + summary.cumulativeByHour);
    card.curveNow = card::shareOfDay(now);
    for (const auto& [name, tokens] : byModel(summary.models))
        card.rows.append(QVariant::fromValue(CardRow{.title = name, .value = shortTokens(tokens)}));
    if (isOpen)
        describeWindow(card, *summary.window, now);
}

} // namespace fendrel
