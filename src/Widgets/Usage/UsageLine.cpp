#include "Widgets/Usage/UsageLine.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <numeric>

namespace fendrel::usage {

namespace ondemand = simdjson::ondemand;

static_assert(LineParser::padding >= simdjson::SIMDJSON_PADDING);

struct LineParser::State {
    ondemand::parser parser{};
};

namespace {

constexpr std::string_view madeUpModel = "<synthetic>"; // the agent's own words, such as for an error
constexpr std::string_view unknownModel = "unknown";
constexpr qint64 mostTokens = 1'000'000'000; // of one kind; no reply comes near

/// Digits alone.
template<class Number>
bool readDigits(std::string_view text, Number& number) {
    const auto [rest, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    return problem == std::errc() && rest == text.data() + text.size() && text.front() != '-';
}

/// "Z", "+02:00" or "+0200".
std::optional<std::chrono::minutes> readOffset(std::string_view text) {
    if (text == "Z")
        return std::chrono::minutes(0);
    const bool hasColon = text.size() == 6 && text[3] == ':';
    int hours = 0;
    int minutes = 0;
    if ((text.size() != 5 && !hasColon) || (text[0] != '+' && text[0] != '-') ||
        !readDigits(text.substr(1, 2), hours) || !readDigits(text.substr(text.size() - 2), minutes) || hours > 23 ||
        minutes > 59)
        return {};
    const auto offset = std::chrono::hours(hours) + std::chrono::minutes(minutes);
    return text[0] == '-' ? -offset : offset;
}

/// Empty for what is no text.
std::string_view text(ondemand::value value) {
    std::string_view text;
    return value.get_string().get(text) == simdjson::SUCCESS ? text : std::string_view();
}

qint64 counter(simdjson::simdjson_result<ondemand::value> value) {
    ondemand::number number;
    if (value.get_number().get(number) != simdjson::SUCCESS)
        return 0;
    if (number.is_int64())
        return std::clamp<qint64>(number.get_int64(), 0, mostTokens);
    if (number.is_uint64())
        return mostTokens;
    const double real = number.get_double();
    return real > 0 ? static_cast<qint64>(std::min(real, static_cast<double>(mostTokens))) : 0;
}

constexpr std::array counterKeys{"output_tokens", "input_tokens", "cache_creation_input_tokens",
                                 "cache_read_input_tokens"};
using Counters = std::array<qint64, counterKeys.size()>;

std::optional<Counters> readCounters(ondemand::value value) {
    ondemand::object usage;
    if (value.get_object().get(usage) != simdjson::SUCCESS)
        return {};
    Counters counters{};
    for (auto field : usage) {
        ondemand::raw_json_string key;
        if (field.key().get(key) != simdjson::SUCCESS)
            return {};
        const auto known = std::ranges::find_if(counterKeys, [&key](const char* each) { return key == each; });
        if (known != counterKeys.end())
            counters[static_cast<std::size_t>(known - counterKeys.begin())] = counter(field.value());
    }
    return counters;
}

struct Message {
    std::string_view id{};
    std::string_view model{};
    std::optional<Counters> counters{};
};

std::optional<Message> readMessage(ondemand::value value) {
    ondemand::object object;
    if (value.get_object().get(object) != simdjson::SUCCESS)
        return {};
    Message message;
    for (auto field : object) {
        ondemand::raw_json_string key;
        if (field.key().get(key) != simdjson::SUCCESS)
            return {};
        ondemand::value part = field.value();
        if (key == "id")
            message.id = text(part);
        else if (key == "model")
            message.model = text(part);
        else if (key == "usage")
            message.counters = readCounters(part);
    }
    return message;
}

} // namespace

std::optional<WallTime> readTime(std::string_view text) {
    using namespace std::chrono;
    constexpr std::string_view form = "yyyy-mm-ddThh:mm:ss";
    if (text.size() <= form.size())
        return {};
    int years = 0;
    unsigned months = 0;
    unsigned days = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    const bool hasForm = text[4] == '-' && text[7] == '-' && text[10] == 'T' && text[13] == ':' && text[16] == ':';
    if (!hasForm || !readDigits(text.substr(0, 4), years) || !readDigits(text.substr(5, 2), months) ||
        !readDigits(text.substr(8, 2), days) || !readDigits(text.substr(11, 2), hour) ||
        !readDigits(text.substr(14, 2), minute) || !readDigits(text.substr(17, 2), second))
        return {};
    const year_month_day date = year(years) / month(months) / day(days);
    if (!date.ok() || hour > 23 || minute > 59 || second > 60)
        return {};

    text.remove_prefix(form.size());
    int thousandths = 0;
    if (text.front() == '.') {
        text.remove_prefix(1);
        const std::size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
        if (digits == 0)
            return {};
        for (std::size_t place = 0; place < 3; ++place)
            thousandths = 10 * thousandths + (place < digits ? text[place] - '0' : 0);
        text.remove_prefix(digits);
    }
    const auto offset = readOffset(text);
    if (!offset)
        return {};
    return sys_days(date) + hours(hour) + minutes(minute) + seconds(second) + milliseconds(thousandths) - *offset;
}

LineParser::LineParser() : m_state(std::make_unique<State>()) {}

LineParser::~LineParser() = default;

std::optional<Reply> LineParser::parse(std::string_view line) {
    ondemand::document document;
    ondemand::object object;
    const simdjson::padded_string_view padded(line.data(), line.size(), line.size() + padding);
    if (m_state->parser.iterate(padded).get(document) != simdjson::SUCCESS ||
        document.get_object().get(object) != simdjson::SUCCESS)
        return {};

    std::string_view type;
    std::string_view timestamp;
    std::string_view request;
    std::optional<Message> message;
    // In the order of the line, once: nothing of it is passed over twice.
    for (auto field : object) {
        ondemand::raw_json_string key;
        if (field.key().get(key) != simdjson::SUCCESS)
            return {};
        ondemand::value value = field.value();
        if (key == "type")
            type = text(value);
        else if (key == "timestamp")
            timestamp = text(value);
        else if (key == "requestId")
            request = text(value);
        else if (key == "message")
            message = readMessage(value);
    }
    const auto time = readTime(timestamp);
    if (type != "assistant" || !time || !message || !message->counters || message->model == madeUpModel)
        return {};
    return Reply{.request = request.empty() ? message->id : request,
                 .model = message->model.empty() ? unknownModel : message->model,
                 .time = *time,
                 .tokens = std::accumulate(message->counters->begin(), message->counters->end(), qint64(0)),
                 .output = message->counters->front()};
}

} // namespace fendrel::usage
