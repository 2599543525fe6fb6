#include "UI/Widgets/CardText.h"
#include "UI/Widgets/Cards.h"
#include "Widgets/Revenue/Money.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using State = CardContent::State;
using Tone = CardContent::Tone;

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("Card", text);
}

QString counted(const char* text, qint64 count) {
    return QCoreApplication::translate("Card", text, nullptr, static_cast<int>(std::min<qint64>(count, 1'000'000'000)));
}

void sayNothing(CardContent& card, const char* text) {
    card.state = State::empty;
    card.headline = translated(text);
}

Tone tone(std::optional<github::CI> ci) {
    using enum github::CI;
    if (!ci)
        return Tone::neutral;
    return *ci == passing ? Tone::good : *ci == running ? Tone::busy : Tone::bad;
}

const char* checks(github::CI ci) {
    using enum github::CI;
    return ci == passing   ? QT_TRANSLATE_NOOP("Card", "Checks passing")
           : ci == running ? QT_TRANSLATE_NOOP("Card", "Checks running")
                           : QT_TRANSLATE_NOOP("Card", "Checks failing");
}

struct StateWords {
    const char* one{};  ///< as a headline
    const char* many{}; ///< after their number
    Tone tone{};
};

/// In the order of the states.
const StateWords stateWords[] = {
    {QT_TRANSLATE_NOOP("Card", "Ready"), QT_TRANSLATE_NOOP("Card", "%1 ready"), Tone::good},
    {QT_TRANSLATE_NOOP("Card", "Building"), QT_TRANSLATE_NOOP("Card", "%1 building"), Tone::busy},
    {QT_TRANSLATE_NOOP("Card", "Failed"), QT_TRANSLATE_NOOP("Card", "%1 failed"), Tone::bad},
    {QT_TRANSLATE_NOOP("Card", "Canceled"), QT_TRANSLATE_NOOP("Card", "%1 canceled"), Tone::neutral},
    {QT_TRANSLATE_NOOP("Card", "Queued"), QT_TRANSLATE_NOOP("Card", "%1 queued"), Tone::busy},
};

const StateWords& words(vercel::State state) {
    return stateWords[static_cast<int>(state)];
}

QString dayText(QDate day, QDate today) {
    if (day == today)
        return QCoreApplication::translate("Card", "Today");
    if (day == today.addDays(1))
        return QCoreApplication::translate("Card", "Tomorrow");
    const QLocale locale;
    const bool isNear = day > today && today.daysTo(day) < 7;
    return isNear ? locale.toString(day, u"dddd"_s) : locale.toString(day, u"d MMM"_s);
}

QString priorityText(int priority) {
    static const char* const names[] = {nullptr, QT_TRANSLATE_NOOP("Card", "Urgent"), QT_TRANSLATE_NOOP("Card", "High"),
                                        QT_TRANSLATE_NOOP("Card", "Medium"), QT_TRANSLATE_NOOP("Card", "Low")};
    return priority >= 1 && priority <= 4 ? translated(names[priority]) : QString();
}

/// What the service calls otherwise is shown as it calls it.
QString levelText(const QString& level) {
    static const QHash<QString, const char*> names{{u"fatal"_s, QT_TRANSLATE_NOOP("Card", "Fatal")},
                                                   {u"error"_s, QT_TRANSLATE_NOOP("Card", "Error")},
                                                   {u"warning"_s, QT_TRANSLATE_NOOP("Card", "Warning")},
                                                   {u"info"_s, QT_TRANSLATE_NOOP("Card", "Info")},
                                                   {u"debug"_s, QT_TRANSLATE_NOOP("Card", "Debug")}};
    const char* name = names.value(level);
    return name ? translated(name) : level;
}

Tone levelTone(const QString& level) {
    return level == "error"_L1 || level == "fatal"_L1 ? Tone::bad : level == "warning"_L1 ? Tone::busy : Tone::neutral;
}

} // namespace

void describe(CardContent& card, const github::Snapshot& snapshot) {
    card.address = QUrl(u"https://github.com/pulls/review-requested"_s);
    card.tone = tone(snapshot.ci());
    const auto add = [&card](const github::PullRequest& request, bool isReview) {
        const QString name = request.repository + u" #"_s + QString::number(request.number);
        const QString state = isReview || !request.ci ? QString() : translated(checks(*request.ci));
        card.rows.append(QVariant::fromValue(CardRow{.title = request.title,
                                                     .detail = card::joined({name, state}),
                                                     .symbol = isReview ? u"eye"_s : QString(),
                                                     .tone = isReview ? Tone::neutral : tone(request.ci),
                                                     .address = request.url}));
    };
    for (const auto& request : snapshot.reviews)
        add(request, true);
    for (const auto& request : snapshot.own)
        add(request, false);
    if (snapshot.reviewCount == 0 && snapshot.ownCount == 0)
        return sayNothing(card, QT_TRANSLATE_NOOP("Card", "No reviews waiting"));
    card.headline = QLocale().toString(snapshot.reviewCount);
    card.brief = shortText(snapshot.reviewCount);
    card.caption = counted(QT_TRANSLATE_N_NOOP("Card", "review(s) waiting"), snapshot.reviewCount);
    card.unit = counted(QT_TRANSLATE_N_NOOP("Card", "review(s)"), snapshot.reviewCount);
    const auto ci = snapshot.ci();
    const QString own = counted(QT_TRANSLATE_N_NOOP("Card", "%n of your own"), snapshot.ownCount);
    card.note = card::joined({ci ? translated(checks(*ci)) : QString(), snapshot.ownCount > 0 ? own : QString()});
}

void describe(CardContent& card, const QList<vercel::Deploy>& deploys, WallTime now) {
    card.address = QUrl(u"https://vercel.com/dashboard"_s);
    if (deploys.isEmpty())
        return sayNothing(card, QT_TRANSLATE_NOOP("Card", "No deploys yet"));
    qint64 counts[std::size(stateWords)]{};
    for (const auto& deploy : deploys) {
        ++counts[static_cast<int>(deploy.state)];
        // Messages have a title and then lines that only readers of the code want.
        const QString message = deploy.commitMessage.section(u'\n', 0, 0).trimmed();
        const QString title = message.isEmpty() ? deploy.project : message;
        card.rows.append(QVariant::fromValue(
            CardRow{.title = title,
                    .detail = card::joined({translated(words(deploy.state).one),
                                            message.isEmpty() ? QString() : deploy.project, deploy.target}),
                    .value = card::age(deploy.created, now),
                    .tone = words(deploy.state).tone,
                    .address = deploy.inspector}));
    }
    const auto& newest = deploys.first();
    if (!newest.inspector.isEmpty())
        card.address = newest.inspector;
    card.headline = translated(words(newest.state).one);
    card.tone = words(newest.state).tone;
    card.caption = newest.project;
    QStringList parts;
    for (std::size_t index = 0; index < std::size(stateWords); ++index)
        if (counts[index] > 0)
            parts.append(translated(stateWords[index].many).arg(QLocale().toString(counts[index])));
    card.note = card::joined(parts);
}

void describe(CardContent& card, const QList<linear::Issue>& issues, WallTime now) {
    card.address = QUrl(u"https://linear.app/"_s);
    if (issues.isEmpty())
        return sayNothing(card, QT_TRANSLATE_NOOP("Card", "Nothing assigned"));
    const QDate today = toDateTime(now).toLocalTime().date();
    int late = 0;
    for (const auto& issue : issues) {
        const bool isDue = issue.dueDate.isValid() && issue.dueDate <= today;
        const bool isLate = isDue && issue.dueDate < today;
        late += isLate ? 1 : 0;
        const Tone tone = isDue ? isLate ? Tone::bad : Tone::busy : issue.isStarted() ? Tone::good : Tone::neutral;
        card.rows.append(QVariant::fromValue(
            CardRow{.title = issue.title,
                    .detail = card::joined({isLate ? QCoreApplication::translate("Card", "Overdue") : QString(),
                                            issue.identifier, issue.stateName, priorityText(issue.priority)}),
                    .value = issue.dueDate.isValid() ? dayText(issue.dueDate, today) : issue.identifier,
                    .tone = tone,
                    .address = issue.url}));
        card.tone = std::max(card.tone, tone == Tone::good ? Tone::neutral : tone);
    }
    const auto started = std::ranges::count_if(issues, &linear::Issue::isStarted);
    const QString all = counted(QT_TRANSLATE_N_NOOP("Card", "%n assigned"), issues.size());
    card.headline = QLocale().toString(qint64(started > 0 ? started : issues.size()));
    card.caption = started > 0 ? QCoreApplication::translate("Card", "in progress")
                               : QCoreApplication::translate("Card", "assigned");
    const QString overdue = counted(QT_TRANSLATE_N_NOOP("Card", "%n overdue"), late);
    card.note = card::joined({late > 0                  ? overdue
                              : card.tone == Tone::busy ? QCoreApplication::translate("Card", "Due today")
                                                        : QString(),
                              started > 0 ? all : QString()});
}

void describe(CardContent& card, const sentry::Snapshot& snapshot) {
    card.address = QUrl(u"https://sentry.io/"_s);
    for (const auto& issue : snapshot.issues) {
        const QString events = counted(QT_TRANSLATE_N_NOOP("Card", "%n event(s)"), issue.events);
        const QString users = counted(QT_TRANSLATE_N_NOOP("Card", "%n user(s)"), issue.users);
        card.rows.append(
            QVariant::fromValue(CardRow{.title = issue.title.isEmpty() ? issue.shortId : issue.title,
                                        .detail = card::joined({levelText(issue.level), issue.culprit, events, users}),
                                        .value = shortText(issue.events),
                                        .tone = levelTone(issue.level),
                                        .address = issue.permalink}));
        card.tone = std::max(card.tone, levelTone(issue.level));
    }
    const qint64 total = std::max<qint64>(snapshot.total, snapshot.issues.size());
    if (total == 0)
        return sayNothing(card, QT_TRANSLATE_NOOP("Card", "No errors today"));
    const QUrl loudest = snapshot.issues.isEmpty() ? QUrl() : snapshot.issues.first().permalink;
    if (loudest.path().startsWith("/issues/"_L1))
        card.address = loudest.resolved(QUrl(u"/issues/"_s));
    card.headline = QLocale().toString(total);
    card.brief = shortText(total);
    card.caption = counted(QT_TRANSLATE_N_NOOP("Card", "error(s) in 24 hours"), total);
    card.unit = counted(QT_TRANSLATE_N_NOOP("Card", "error(s)"), total);
}

} // namespace fendrel
