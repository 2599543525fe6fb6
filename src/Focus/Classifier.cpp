#include "Focus/Classifier.h"

#include "Base/Log.h"
#include "Base/Overloaded.h"
#include "Focus/ModelQuestion.h"
#include "Modes/ModeEngine.h"
#include "Ports/Clock.h"

#include <utility>

namespace fendrel {

namespace {

const QString& plainName(const Subject& subject) {
    if (const auto* app = std::get_if<AppSubject>(&subject))
        return app->name;
    return std::get<SiteSubject>(subject).host;
}

} // namespace

Classifier::Classifier(ModeEngine& engine, LanguageModel& model, const Clock& clock, VerdictCache cache,
                       std::function<QString(const QString&)> appName)
    : m_engine(engine), m_model(model), m_clock(clock), m_cache(std::move(cache)), m_appName(std::move(appName)) {
    m_model.onAvailabilityChanged = [this] { checkModel(); };
    checkModel();
}

void Classifier::checkModel() {
    m_isModelAvailable = m_model.isAvailable();
    Q_EMIT changed(); // for who shows why it is not
    if (m_isModelAvailable)
        m_model.prewarm(question());
}

void Classifier::setFront(std::optional<Judgement> front) {
    if (front == m_front)
        return;
    m_front = std::move(front);
    Q_EMIT changed();
}

void Classifier::clearFront() {
    setFront({});
}

std::optional<Verdict> Classifier::ruleVerdict(const Subject& subject) const {
    const Mode* mode = std::visit(Overloaded{
                                      [this](const AppSubject& app) -> const Mode* {
                                          return m_engine.catalog().sharedApps.contains(app.bundleID)
                                                     ? nullptr
                                                     : m_engine.listing(app.bundleID);
                                      },
                                      [this](const SiteSubject& site) { return m_engine.listingSite(site.host); },
                                  },
                                  subject);
    if (!mode)
        return {};
    return Verdict{
        .modeID = mode->id, .certainty = Certainty::certain, .what = plainName(subject), .source = Source::rule};
}

std::optional<Verdict> Classifier::cachedVerdict(const Subject& subject) {
    const ContinuousTime start = m_clock.continuousNow();
    std::optional<Verdict> verdict = m_cache.find(key(subject));
    if (verdict && verdict->modeID && !m_engine.mode(*verdict->modeID)) {
        m_cache.remove(key(subject));
        verdict.reset();
        Q_EMIT answerChanged(key(subject));
    }
    m_cacheTimes.record(m_clock.continuousNow() - start);
    return verdict;
}

std::optional<Verdict> Classifier::known(const Subject& subject) {
    auto verdict = ruleVerdict(subject);
    return verdict ? verdict : cachedVerdict(subject);
}

Handle Classifier::judge(const Subject& subject, Judged judged) {
    if (const auto verdict = known(subject)) {
        setFront(Judgement{subject, verdict});
        judged(verdict);
        return {};
    }
    const auto* app = std::get_if<AppSubject>(&subject);
    if (!m_isModelAvailable || (app && m_engine.catalog().sharedApps.contains(app->bundleID))) {
        setFront({});
        judged({});
        return {};
    }
    setFront(Judgement{subject, {}});
    const bool isAsked = m_inFlight.contains(key(subject));
    auto waiting = std::make_shared<Judged>(std::move(judged));
    m_inFlight[key(subject)].waiting.push_back(waiting);
    if (!isAsked)
        ask(subject);
    return Handle([waiting] { *waiting = {}; });
}

QStringList Classifier::modeIDs() const {
    QStringList ids;
    for (const Mode& mode : m_engine.modes())
        ids.append(mode.id);
    return ids;
}

Question Classifier::question() const {
    return {.instructions = ModelQuestion::instructions(m_engine.modes(), m_appName),
            .schemaName = QStringLiteral("Verdict"),
            .schema = ModelQuestion::schema(modeIDs())};
}

void Classifier::ask(const Subject& subject) {
    Question asked = question();
    asked.prompt = ModelQuestion::prompt(subject);
    m_inFlight[key(subject)].question =
        m_model.ask(asked, [this, subject, modeIDs = modeIDs(), start = m_clock.continuousNow()](const auto& answer) {
            if (!answer) {
                qCWarning(logFocus).noquote().nospace()
                    << "Model couldn't judge " << Private{plainName(subject)} << ": " << answer.error();
                answered(subject, {});
                return;
            }
            const auto elapsed = m_clock.continuousNow() - start;
            m_modelTimes.record(elapsed);
            qCDebug(logFocus).noquote() << "model"
                                        << std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count()
                                        << "ms for" << Private{plainName(subject)};
            answered(subject, ModelQuestion::verdict(*answer, modeIDs));
        });
}

void Classifier::answered(const Subject& subject, std::optional<Verdict> verdict) {
    // Taken out first: whoever is told may ask again.
    const InFlight ended = std::exchange(m_inFlight[key(subject)], {});
    m_inFlight.erase(key(subject));
    const auto corrected = m_cache.find(key(subject));
    if (corrected && corrected->certainty != Certainty::unsure) {
        verdict = corrected;
    } else if (verdict && verdict->certainty != Certainty::unsure) {
        remember(key(subject), *verdict);
    }
    // The user may have added it to a mode meanwhile.
    if (const auto listed = ruleVerdict(subject))
        verdict = listed;
    // What is in front may be another window of the subject by now, or something else altogether.
    if (m_front && key(m_front->subject) == key(subject))
        setFront(verdict ? std::optional(Judgement{m_front->subject, verdict}) : std::nullopt);
    for (const auto& waiting : ended.waiting) {
        if (const Judged judged = *waiting)
            judged(verdict);
    }
}

void Classifier::correct(const Subject& subject, const std::optional<QString>& modeID) {
    const auto before = m_cache.find(key(subject));
    const Verdict verdict{.modeID = modeID,
                          .certainty = Certainty::certain,
                          .what = before ? before->what : plainName(subject),
                          .source = Source::you};
    remember(key(subject), verdict);
    if (m_front && key(m_front->subject) == key(subject))
        setFront(Judgement{m_front->subject, verdict});
}

void Classifier::remember(const QString& key, const Verdict& verdict) {
    m_cache.insert(key, {.verdict = verdict, .date = m_clock.now()});
    m_cache.save();
    Q_EMIT answerChanged(key);
}

void Classifier::forget(const QStringList& keys) {
    QStringList forgotten;
    for (const QString& key : keys) {
        if (m_cache.find(key)) {
            m_cache.remove(key);
            forgotten.append(key);
        }
    }
    if (forgotten.isEmpty())
        return;
    m_cache.save();
    for (const QString& key : std::as_const(forgotten))
        Q_EMIT answerChanged(key);
    onForgotten();
}

void Classifier::replaceAnswers(const LearnedAnswers& answers) {
    m_cache.replace(answers);
    m_cache.save();
    Q_EMIT answersReplaced();
    onForgotten();
}

std::optional<QString> Classifier::modeID(const QString& host) const {
    auto verdict = ruleVerdict(SiteSubject{.host = host});
    if (!verdict)
        verdict = m_cache.find(host);
    const bool isKnown = verdict && verdict->modeID && m_engine.mode(*verdict->modeID);
    if (!isKnown || verdict->certainty == Certainty::unsure)
        return {};
    return verdict->modeID;
}

} // namespace fendrel
