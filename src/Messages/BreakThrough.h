#pragma once

#include "Messages/HeldMessage.h"

#include <QRegularExpression>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

namespace fendrel {

/// The user's words with which a message is shown at once: whole words, in whatever case and script.
class BreakThrough {
public:
    explicit BreakThrough(const QStringList& words); ///< empty ones are in no message

    /// Why a message breaks through, for the user: first the title is looked at, then the rest.
    std::optional<QString> reason(const HeldMessage& message) const;

private:
    std::vector<std::pair<QString, QRegularExpression>> m_words;
};

} // namespace fendrel
