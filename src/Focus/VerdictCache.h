#pragma once

#include "Base/WallTime.h"
#include "Focus/Judgement.h"

#include <QHash>

#include <optional>

namespace fendrel {

class Worker;

struct LearnedAnswer {
    Verdict verdict{};
    std::optional<WallTime> date{}; ///< when it was given; answers of earlier versions have none
    bool operator==(const LearnedAnswer&) const = default;
};

using LearnedAnswers = QHash<QString, LearnedAnswer>; ///< by subject key

/// Answers that were given before, by subject key, in the file "Verdicts.json". There is no expiry. Main thread; the
/// file is written on the disk worker, where a save that has not begun gives way to a newer one.
class VerdictCache {
public:
    /// Reads the file. A broken entry is skipped; a file that is no JSON object is kept aside.
    VerdictCache(const QString& folder, Worker& disk);

    const LearnedAnswers& answers() const { return m_answers; }
    std::optional<Verdict> find(const QString& key) const;
    void insert(const QString& key, const LearnedAnswer& answer);
    void remove(const QString& key);
    void replace(const LearnedAnswers& answers) { m_answers = answers; }
    void save();

    /// The file's content: an object with a member for each key.
    static QByteArray encode(const LearnedAnswers& answers);
    static LearnedAnswers decode(const QJsonObject& object);

private:
    QString m_path;
    Worker& m_disk;
    LearnedAnswers m_answers;
};

} // namespace fendrel
