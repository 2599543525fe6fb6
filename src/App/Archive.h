#pragma once

#include "Base/Result.h"
#include "Focus/VerdictCache.h"
#include "Modes/Mode.h"
#include "Ports/SettingsStore.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace fendrel {

/// What the user taught Fendrel, as one file that can be kept or taken to another computer: modes, settings and learned
/// answers. Nothing that is secret, and nothing that is true of this computer only.
struct Archive {
    QList<Mode> modes{};
    /// By key; nothing: the default is in force. Keys that are not here are left as they are.
    QHash<QString, std::optional<StoredValue>> settings{};
    LearnedAnswers answers{};
    qsizetype skipped{}; ///< entries of the file that could not be read

    /// Longer files are refused unread.
    static constexpr qint64 longestFile = qint64{64} << 20;
    static constexpr qsizetype mostModes = 500;
    static constexpr qsizetype mostAnswers = 100'000; ///< the newest of more

    /// `date` is for people who look into the file.
    QByteArray encode(WallTime date) const;

    /// Reads a file. `settings` has every setting that may come in, with a value of its type. A single entry that
    /// cannot be read is skipped; what is no archive at all gives a sentence for the user. Safe on any thread.
    static Result<Archive, QString> decode(const QByteArray& file, const QHash<QString, StoredValue>& settings);
};

} // namespace fendrel
