#pragma once

#include "Base/Handle.h"
#include "Base/Result.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace fendrel {

/// One property that the model has to fill in. Properties are generated in the order of the schema.
struct SchemaProperty {
    enum class Kind { text, choice, boolean };
    QString name{};
    Kind kind{Kind::text};
    QString typeName{}; ///< of a choice
    QString description{};
    QStringList choices{}; ///< the only answers allowed to a choice
    bool operator==(const SchemaProperty&) const = default;
};

struct Question {
    QString instructions{};
    QString prompt{};
    QString schemaName{};           ///< says what the question is for: one is asked at a time for each purpose
    QList<SchemaProperty> schema{}; ///< empty: the answer is one text, under ""
    bool operator==(const Question&) const = default;
};

/// What the user picks where the system leaves the choice; empty: found without being told.
struct ModelChoice {
    QString server{}; ///< address of a model server on this machine
    QString model{};  ///< its name for a model
    bool operator==(const ModelChoice&) const = default;
};

/// A language model on this machine. Main thread. Every question stands alone: nothing of an earlier one is kept.
class LanguageModel {
public:
    /// Property name -> text ("true" or "false" for a boolean). Holds every property of the schema and keeps to it.
    using Answer = QHash<QString, QString>;
    using Answered = std::function<void(const Result<Answer, QString>&)>;

    virtual ~LanguageModel() = default;

    virtual void choose(const ModelChoice&) {}
    virtual bool isAvailable() const = 0;
    virtual QString unavailableReason() const = 0; ///< for the user; empty while available
    /// Makes ready for questions like this one, whatever their prompt; a later call replaces one that is under way.
    virtual void prewarm(const Question& question) = 0;
    /// Greedy: the same question gives the same answer. An error is text for the log.
    virtual Handle ask(const Question& question, Answered answered) = 0;

    std::function<void()> onAvailabilityChanged = [] {};
};

} // namespace fendrel
