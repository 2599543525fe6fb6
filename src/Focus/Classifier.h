#pragma once

#include "Focus/Judgement.h"
#include "Focus/TimingLog.h"
#include "Focus/VerdictCache.h"
#include "Ports/LanguageModel.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace fendrel {

class Clock;
class ModeEngine;

/// Decides to which mode the thing in front belongs: by the modes' lists, then by remembered answers, then by asking
/// the language model. Publishes the judgement of what is in front, and takes the user's corrections. Main thread.
class Classifier : public QObject {
    Q_OBJECT
public:
    using Verdict = fendrel::Verdict;
    using Subject = fendrel::Subject;
    using Judgement = fendrel::Judgement;
    using Judged = std::function<void(const std::optional<Verdict>&)>;

    Classifier(ModeEngine& engine, LanguageModel& model, const Clock& clock, VerdictCache cache,
               std::function<QString(const QString& bundleID)> appName);

    /// Answers were forgotten or replaced: what they were used for is to be judged anew.
    std::function<void()> onForgotten = [] {};

    const std::optional<Judgement>& front() const { return m_front; }
    void clearFront();
    bool isModelAvailable() const { return m_isModelAvailable; }
    /// Asks the model's port whether it can answer, and warms it up; called at the start, and when either changes.
    void checkModel();

    /// Answers through `judged`: at once (during the call) from lists and memory, later when the model is asked, never
    /// after the handle is dropped. Nothing means that nobody knows. The question goes on without its asker, so that
    /// its answer is remembered.
    Handle judge(const Subject& subject, Judged judged);

    /// The user's own answer. Nothing: it belongs to no mode.
    void correct(const Subject& subject, const std::optional<QString>& modeID);

    /// What is remembered, by subject key. An answer can name a mode that is gone; it is never used.
    const LearnedAnswers& answers() const { return m_cache.answers(); }
    void forget(const QStringList& keys); ///< unknown ones are passed over
    void replaceAnswers(const LearnedAnswers& answers);

    /// The mode of a host by the lists or a remembered answer that is sure enough.
    std::optional<QString> modeID(const QString& host) const;

    /// What the lists or a remembered answer say, without asking anybody.
    std::optional<Verdict> known(const Subject& subject);
    /// Publishes what the lists say of what is in front.
    void showRule(const Subject& subject) { setFront(Judgement{subject, ruleVerdict(subject)}); }

    std::optional<Verdict> ruleVerdict(const Subject& subject) const;
    std::optional<Verdict> cachedVerdict(const Subject& subject);

Q_SIGNALS:
    void changed();
    void answerChanged(const QString& key); ///< it came, went or is another
    void answersReplaced();                 ///< all may be others

private:
    struct InFlight {
        Handle question;
        std::vector<std::shared_ptr<Judged>> waiting; ///< emptied by whoever no longer waits
    };

    void setFront(std::optional<Judgement> front);
    void remember(const QString& key, const Verdict& verdict);
    QStringList modeIDs() const;
    Question question() const; ///< without a prompt
    void ask(const Subject& subject);
    void answered(const Subject& subject, std::optional<Verdict> verdict);

    ModeEngine& m_engine;
    LanguageModel& m_model;
    const Clock& m_clock;
    VerdictCache m_cache;
    std::function<QString(const QString&)> m_appName;
    bool m_isModelAvailable = false;
    std::optional<Judgement> m_front;
    std::map<QString, InFlight> m_inFlight;
    TimingLog m_cacheTimes{QStringLiteral("cache")};
    TimingLog m_modelTimes{QStringLiteral("model")};
};

} // namespace fendrel
