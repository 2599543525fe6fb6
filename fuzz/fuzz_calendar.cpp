// A calendar as other programs wrote it: what comes, where its calls are, and its reminders ticked off one by one.

#include "Platform/Linux/Calendar/ICalendarEdit.h"
#include "Require.h"
#include "Widgets/Calendar/JoinLink.h"

#include <cstdint>

using namespace std::chrono_literals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fendrel::CalendarReader reader{.zone = fendrel::CalendarZone(QTimeZone("Europe/Berlin")), .addresses = {}};
    const fendrel::WallTime from = std::chrono::sys_days(std::chrono::March / 28 / 2026);
    const fendrel::WallTime to = from + 48h;
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    fendrel::ICalendar calendar(text);
    for (const auto& each : calendar.events(from, to, reader)) {
        require(each.start <= each.end && each.start < to && each.end >= from);
        if (const auto link = fendrel::joinURL(each))
            require(fendrel::isCall(link->host()) && link->scheme().startsWith(QStringLiteral("http")));
    }
    fendrel::unknownZones(text);
    for (const auto& each : calendar.reminders(from, to, reader)) {
        require(each.due >= from && each.due < to);
        const auto key = fendrel::TaskKey::fromString(each.id);
        const auto edited = fendrel::ICalendarEdit::completed(text, key, from, reader.zone);
        if (!edited)
            continue;
        require(edited->text.contains(edited->task));
        // Nothing is lost but what was changed.
        require(edited->text.count("\nBEGIN:") == text.count("\nBEGIN:") &&
                edited->text.count("\nX-") == text.count("\nX-"));
    }
    return 0;
}
