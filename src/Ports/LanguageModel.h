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
    QString name{};
    QString typeName{}; ///< name of the choice's type; empty for free text
    QString description{};
    QStringList choices{}; ///< the only answers allowed; empty for free text
    bool operator==(const SchemaProperty&) const = default;
};

struct Question {
    QString instructions{};
    QString prompt{};
    QString schemaName{};
    QList<SchemaProperty> schema{}; ///< empty: the answer is one text, under ""
    bool operator==(const Question&) const = default;
};

/// A language model on this machine. Main thread. Every question stands alone: nothing of an earlier one is kept.
class LanguageModel {
public:
    using Answer = QHash<QString, QString>; ///< property name -> text; holds every property of the schema
    using Answered = std::function<void(const Result<Answer, QString>&)>;

    virtual ~LanguageModel() = default;

    virtual bool isAvailable() const = 0;
    virtual QString unavailableReason() const = 0; ///< for the user; empty while available
    virtual void prewarm(const QString& instructions) = 0;
    /// Greedy: the same question gives the same answer. An error is text for the log.
    virtual Handle ask(const Question& question, Answered answered) = 0;

    std::function<void()> onAvailabilityChanged = [] {};
};

} // namespace fendrel
