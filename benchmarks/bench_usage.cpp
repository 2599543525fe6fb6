// What it costs to read a coding agent's logs.
//   bench_usage scan FOLDER      looks once, and prints what it found
//   bench_usage passes FOLDER    after that one: with nothing new, with a line more, and how fast bytes are searched
// Prints JSON; times are processor time.

#include "Widgets/Usage/ByteSearch.h"
#include "Widgets/Usage/UsageScanner.h"

#include <QByteArrayMatcher>
#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <ctime>
#include <stdexcept>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

constexpr int passes = 200;
constexpr int searches = 2000;

double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

template<class Run>
double seconds(const Run& run) {
    const double before = processorSeconds();
    run();
    return processorSeconds() - before;
}

usage::Summary look(UsageScanner& scanner) {
    return scanner.scan(toWallTime(QDateTime::currentDateTimeUtc()), QTimeZone::systemTimeZone());
}

QJsonObject scan(UsageScanner& scanner) {
    const usage::Summary summary = look(scanner);
    return {{u"tokensToday"_s, summary.tokensToday}, {u"messagesToday"_s, summary.messagesToday}};
}

QJsonObject passesOf(UsageScanner& scanner, const QString& folder) {
    look(scanner);
    QJsonArray unchanged;
    QJsonArray appended;
    QFile file(folder + u"/projects/project-0/0.jsonl"_s);
    if (!file.open(QIODevice::Append))
        throw std::runtime_error("cannot append to a log");
    for (int pass = 0; pass < passes; ++pass) {
        unchanged.append(1e3 * seconds([&] { look(scanner); }));
        const int before = look(scanner).messagesToday;
        file.write(R"({"type":"assistant","requestId":"more)" + QByteArray::number(pass) + R"(","timestamp":")" +
                   QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toUtf8() +
                   R"(","message":{"model":"more","usage":{"input_tokens":1}}})" + '\n');
        file.flush();
        int after = 0;
        appended.append(1e3 * seconds([&] { after = look(scanner).messagesToday; }));
        if (after != before + 1)
            throw std::runtime_error("a line was not found");
    }
    return {{u"unchanged"_s, unchanged}, {u"appended"_s, appended}};
}

/// Nanoseconds for a KB (1,000 bytes) of a chunk of a log.
QJsonObject searchesOf(const QString& folder) {
    QFile file(folder + u"/projects/project-0/0.jsonl"_s);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read a log");
    const QByteArray chunk = file.read(usage::LogTail::chunk);
    const QByteArrayMatcher matcher("\"absent\"");
    const auto least = [&](const auto& search) {
        double shortest = 1e9;
        for (int each = 0; each < searches; ++each)
            shortest = std::min(shortest, seconds(search));
        return 1e12 * shortest / static_cast<double>(chunk.size());
    };
    const char* const end = chunk.constData() + chunk.size();
    // A needle of the same letters that isn't there, so that all of the chunk is looked at.
    return {{u"ours"_s, least([&] {
                 if (findBytes(chunk.constData(), end, "\"usagf\"") != end)
                     throw std::runtime_error("what is not there was found");
             })},
            {u"library"_s, least([&] {
                 if (matcher.indexIn(chunk) >= 0)
                     throw std::runtime_error("what is not there was found");
             })}};
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 3)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[2]);
    UsageScanner scanner({folder + u"/projects"_s});
    QJsonObject answer;
    if (QByteArray(argv[1]) == "scan") {
        answer = scan(scanner);
    } else {
        answer = passesOf(scanner, folder);
        answer.insert(u"search"_s, searchesOf(folder));
    }
    std::puts(QJsonDocument(answer).toJson(QJsonDocument::Compact).constData());
    return 0;
} catch (const std::exception& trouble) {
    std::fprintf(stderr, "bench_usage: %s\n", trouble.what());
    return 1;
}
