// What the next 24 hours hold, of two thousand events that come again and began years ago: asked again a minute later,
// for the first time, and by following every rule with the library alone.

#include "Platform/Linux/Calendar/ICalendar.h"

#include <benchmark/benchmark.h>
#include <libical/ical.h>

using namespace fendrel;
using namespace std::chrono_literals;

namespace {

constexpr int count = 2'000;
const WallTime now = std::chrono::sys_days(std::chrono::January / 5 / 2026) + 9h;

QByteArray text() {
    static const QList<QByteArray> rules{"FREQ=WEEKLY;BYDAY=MO,WE", "FREQ=DAILY;INTERVAL=2", "FREQ=MONTHLY;BYDAY=1MO",
                                         "FREQ=YEARLY", "FREQ=WEEKLY;COUNT=52"};
    QByteArray all = "BEGIN:VCALENDAR\r\n";
    for (int number = 0; number < count; ++number) {
        const QByteArray id = QByteArray::number(number);
        const QByteArray day = QByteArray::number(20180101 + number % 28);
        all += "BEGIN:VEVENT\r\nUID:" + id + "\r\nSUMMARY:Meeting " + id + "\r\nDTSTART;TZID=Europe/Berlin:" + day +
               "T103000\r\nDURATION:PT1H\r\nRRULE:" + rules[number % rules.size()] + "\r\nEND:VEVENT\r\n";
    }
    return all + "END:VCALENDAR\r\n";
}

void again(benchmark::State& state) {
    const CalendarReader reader{.addresses = {}};
    ICalendar calendar(text());
    calendar.events(now, now + 24h, reader);
    WallTime later = now;
    qsizetype found = 0;
    for (auto _ : state) {
        later = later + 1min < now + 24h ? later + 1min : now;
        found = std::max(found, calendar.events(later, later + 24h, reader).size());
    }
    if (found == 0)
        state.SkipWithError("nothing comes");
}

void first(benchmark::State& state) {
    const CalendarReader reader{.addresses = {}};
    const ICalendar fresh(text());
    for (auto _ : state) {
        state.PauseTiming();
        ICalendar calendar(fresh);
        state.ResumeTiming();
        benchmark::DoNotOptimize(calendar.events(now, now + 24h, reader));
    }
}

void read(benchmark::State& state) {
    const QByteArray all = text();
    for (auto _ : state)
        benchmark::DoNotOptimize(ICalendar(all).seriesCount());
}

void plain(benchmark::State& state) {
    icalcomponent* calendar = icalparser_parse_string(text().constData());
    const auto from = std::chrono::floor<std::chrono::seconds>(now).time_since_epoch().count();
    const auto start = icaltime_from_timet_with_zone(from, 0, icaltimezone_get_utc_timezone());
    const auto end = icaltime_from_timet_with_zone(from + 86'400, 0, icaltimezone_get_utc_timezone());
    for (auto _ : state) {
        int found = 0;
        for (auto* each = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT); each != nullptr;
             each = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT))
            icalcomponent_foreach_recurrence(
                each, start, end, [](icalcomponent*, icaltime_span*, void* number) { ++*static_cast<int*>(number); },
                &found);
        benchmark::DoNotOptimize(found);
    }
    icalcomponent_free(calendar);
}

} // namespace

BENCHMARK(again)->Unit(benchmark::kMicrosecond);
BENCHMARK(first)->Unit(benchmark::kMicrosecond);
BENCHMARK(read)->Unit(benchmark::kMicrosecond);
BENCHMARK(plain)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
