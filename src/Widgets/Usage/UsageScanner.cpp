#include "Widgets/Usage/UsageScanner.h"

#include "Base/FileDescriptor.h"
#include "Widgets/Usage/ByteSearch.h"

#include <fcntl.h>

namespace fendrel {

using namespace usage;

namespace {
constexpr std::chrono::hours remembered{48};
}

/// One look at the logs, and what is needed only meanwhile.
class UsageScanner::Pass {
public:
    Pass(UsageScanner& scanner, WallTime since, const std::stop_token& stop)
        : m_scanner(scanner), m_since(since), m_stop(stop) {}

    void look(const FoundLog& found) {
        const auto known = m_scanner.m_logs.find(found.path);
        const bool isKnown = known != m_scanner.m_logs.end();
        if (isKnown)
            known->seen = m_scanner.m_passes;
        const bool isNews =
            found.facts.modified > m_since && !(isKnown && known->isReadWhole && known->facts == found.facts);
        if (isNews && !m_stop.stop_requested())
            read(found);
    }

private:
    struct Tools {
        LogTail tail{static_cast<qsizetype>(LineParser::padding)};
        LineParser parser{};
    };

    void read(const FoundLog& found) {
        // A pipe of that name would make us wait.
        const FileDescriptor file(::openat(found.folder, found.name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
        const auto facts = file ? factsOf(file.get()) : std::nullopt;
        if (!facts)
            return;
        Log& log = m_scanner.m_logs[found.path];
        if (!facts->isSameFile(log.facts) || !LogTail::continues(file.get(), log.position)) {
            if (log.number != 0)
                m_scanner.m_ledger.forgetFile(log.number);
            log = {.number = ++m_scanner.m_lastNumber};
        }
        log.facts = *facts;
        log.seen = m_scanner.m_passes;
        if (!m_tools)
            m_tools.emplace();
        const auto takeLine = [&](std::string_view line, qint64 offset) { take(line, offset, found.path, log.number); };
        log.isReadWhole = m_tools->tail.read(file.get(), facts->size, log.position, m_stop, takeLine);
    }

    /// Nearly all lines are passed over without being parsed.
    void take(std::string_view line, qint64 offset, const QByteArray& path, int file) {
        const char* const end = line.data() + line.size();
        if (findBytes(line.data(), end, "\"usage\"") == end || findBytes(line.data(), end, "\"assistant\"") == end)
            return;
        const auto reply = m_tools->parser.parse(line);
        if (!reply || reply->time < m_since)
            return;
        if (reply->request.empty())
            m_scanner.m_ledger.put(path + ':' + QByteArray::number(offset), *reply, file);
        else
            m_scanner.m_ledger.put(reply->request, *reply, file);
    }

    UsageScanner& m_scanner;
    WallTime m_since;
    const std::stop_token& m_stop;
    std::optional<Tools> m_tools; ///< a pass without news needs none
};

Summary UsageScanner::scan(WallTime now, const QTimeZone& zone, const std::stop_token& stop) {
    const WallTime since = now - remembered;
    Pass pass(*this, since, stop);
    bool hasLogs = false;
    ++m_passes;
    walkLogs(m_roots, [&](const FoundLog& found) {
        hasLogs = true;
        pass.look(found);
    });
    m_logs.removeIf([this](const auto& each) { return each->seen != m_passes; });
    m_ledger.forgetBefore(since);
    return summarize(m_ledger.quarters(), now, zone, hasLogs);
}

} // namespace fendrel
