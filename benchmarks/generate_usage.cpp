// Makes logs as a coding agent leaves them: the user's words, results of tools that are much longer and do not count,
// and replies of which each is told several times as it streams. The same each time, but for the moments.
//   generate_usage FOLDER DAYS    500 files, about 940 MB, over the days before now; a file is as old as its last line

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int files = 500;
constexpr int filesInFolder = 10;
constexpr qint64 meanSize = 1'880'000;
constexpr qsizetype poolSize = 4'000'000;

std::mt19937_64 chance(20260105); // NOLINT(cert-msc51-cpp): the same logs each time

/// Not the library's distributions, which differ from one library to the next.
qint64 between(qint64 least, qint64 most) {
    return least + static_cast<qint64>(chance() % static_cast<quint64>(most - least + 1));
}

/// Prose and code as JSON text has them.
QByteArray makePool() {
    const QList<QByteArray> words{"the",        "function",  "returns", "a",        "value",
                                  "which",      "is",        "used",    "by",       "usage",
                                  "of",         "assistant", "and",     "reads",    "\\n",
                                  "\\n    ",    "\\\"",      "{",       "}",        "();",
                                  "const auto", "if (",      ") {",     "->",       "\\\"usage\\\"",
                                  "under",      "unless",    "error:",  "src/main", ".cpp",
                                  "0x1f",       "\xc3\xbc",  "test",    "build",    "file"};
    QByteArray pool;
    while (pool.size() < poolSize)
        pool += words[between(0, words.size() - 1)] + ' ';
    return pool;
}

/// Some of the pool, whole words only.
QByteArray text(qint64 size) {
    static const QByteArray pool = makePool();
    const qsizetype start = pool.indexOf(' ', between(0, poolSize - size - 100)) + 1;
    return pool.mid(start, pool.indexOf(' ', start + size) - start);
}

QByteArray id(const char* kind) {
    return kind + QByteArray::number(chance(), 36) + QByteArray::number(chance(), 36);
}

/// One conversation, from its first line to its last.
class Log {
public:
    Log(QDateTime start, QDateTime end, qint64 size) : m_time(std::move(start)), m_end(std::move(end)), m_size(size) {}

    void write(QFile& file) {
        const qint64 step = m_time.msecsTo(m_end) / std::max<qint64>(1, m_size / 15'000);
        for (qint64 written = 0; written < m_size;) {
            m_time = std::min(m_time.addMSecs(step), m_end);
            const QByteArray turn = between(0, 7) == 0 ? prompt() + reply() : toolResult() + reply();
            written += file.write(turn);
        }
    }

private:
    QByteArray line(const char* type, const QByteArray& message, const QByteArray& more = {}) {
        return R"({"parentUuid":")" + id("") +
               R"(","isSidechain":false,"userType":"external","cwd":"/home/me/project",)" + R"("sessionId":")" +
               m_session + R"(","version":"2.0.14","gitBranch":"main","message":)" + message + more + R"(,"type":")" +
               type + R"(","uuid":")" + id("") + R"(","timestamp":")" + m_time.toString(Qt::ISODateWithMs).toUtf8() +
               "\"}\n";
    }

    QByteArray prompt() { return line("user", R"({"role":"user","content":")" + text(between(50, 2'000)) + "\"}"); }

    /// Told twice, for the model and for the screen.
    QByteArray toolResult() {
        const bool isLarge = between(0, 99) == 0;
        const QByteArray content = text(isLarge ? between(100'000, 400'000) : between(200, 8'000));
        return line("user",
                    R"({"role":"user","content":[{"type":"tool_result","tool_use_id":")" + id("toolu_") +
                        R"(","content":")" + content + R"("}]})",
                    R"(,"toolUseResult":{"stdout":")" + content + R"(","stderr":"","interrupted":false})");
    }

    QByteArray reply() {
        const QByteArray message = id("msg_");
        const QByteArray request = id("req_");
        const QByteArray start = R"({"id":")" + message + R"(","type":"message","role":"assistant","model":")" +
                                 (between(0, 3) == 0 ? "claude-haiku-4-5" : "claude-opus-4-5") + R"(","content":[)";
        const QByteArray cached = QByteArray::number(between(10'000, 150'000));
        QByteArray lines;
        qint64 output = 0;
        for (const char* kind : {"thinking", "text", "tool_use"}) {
            output += between(1, 500);
            lines += line("assistant",
                          start + R"({"type":")" + kind + R"(","text":")" + text(between(100, 2'500)) +
                              R"("}],"stop_reason":null,"stop_sequence":null,"usage":{"input_tokens":4,)" +
                              R"("cache_creation_input_tokens":512,"cache_read_input_tokens":)" + cached +
                              R"(,"cache_creation":{"ephemeral_5m_input_tokens":512,"ephemeral_1h_input_tokens":0},)" +
                              R"("output_tokens":)" + QByteArray::number(output) + R"(,"service_tier":"standard"}})",
                          R"(,"requestId":")" + request + '"');
        }
        return lines;
    }

    QDateTime m_time;
    QDateTime m_end;
    qint64 m_size;
    QByteArray m_session = id("");
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const qint64 span = QByteArray(argv[2]).toLongLong() * 24 * 60 * 60 * 1000;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (int number = 0; number < files; ++number) {
        const QString path = u"%1/projects/project-%2"_s.arg(folder).arg(number / filesInFolder);
        QDir().mkpath(path);
        QFile file(u"%1/%2.jsonl"_s.arg(path).arg(number));
        const QDateTime end = now.addMSecs(-span * number / files);
        // Most are small, some are large.
        const qint64 size = meanSize * (number % 10 == 0 ? 46 : 6) / 10;
        if (!file.open(QIODevice::WriteOnly)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
            return 1;
        }
        Log(end.addSecs(-60 * 60), end, size).write(file);
        file.flush();
        file.setFileTime(end, QFileDevice::FileModificationTime);
    }
    return 0;
}
