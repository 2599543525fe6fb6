#pragma once

#include "Widgets/Usage/LogFolder.h"
#include "Widgets/Usage/LogTail.h"
#include "Widgets/Usage/UsageLedger.h"

#include <QHash>
#include <QStringList>

namespace fendrel {

/// Reads what was appended to a coding agent's logs since it last looked, and adds up what the agent used. Blocks on
/// the disk; one thread at a time.
class UsageScanner {
public:
    explicit UsageScanner(QStringList roots) : m_roots(std::move(roots)) {}

    /// Looks at all logs. Asked to stop, it does so within a chunk, and goes on from there the next time.
    usage::Summary scan(WallTime now, const QTimeZone& zone, const std::stop_token& stop = {});

private:
    class Pass;
    struct Log {
        usage::FileFacts facts{}; ///< when it was last read
        usage::LogPosition position{};
        bool isReadWhole = false; ///< up to that size
        int number{};             ///< under which the ledger knows it
        quint64 seen{};           ///< in which pass
    };

    QStringList m_roots;
    QHash<QByteArray, Log> m_logs; ///< those that were opened, by path
    usage::Ledger m_ledger;
    int m_lastNumber = 0;
    quint64 m_passes = 0;
};

} // namespace fendrel
