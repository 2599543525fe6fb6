#include "Messages/UrgencyQuestion.h"

#include "Base/PromptText.h"

namespace fendrel::UrgencyQuestion {

using namespace Qt::StringLiterals;

namespace {
constexpr int bodyLength = 400;
}

Question about(const HeldMessage& message) {
    return {
        .instructions = u"The user is focused on something else. Decide if this message needs them now. Chit-chat, "
                        "newsletters, promotions, FYIs, reactions and group noise are not urgent."_s,
        .prompt = u"From: "_s + promptText::line(message.title) + u'\n' + promptText::line(message.subtitle) + u'\n' +
                  promptText::first(message.body, bodyLength),
        .schemaName = u"Urgency"_s,
        .schema = {{.name = u"urgent"_s,
                    .kind = SchemaProperty::Kind::boolean,
                    .description = u"True only if the user should see it now: a direct question or request with a "
                                   "deadline today, something broken, or someone blocked waiting on them"_s},
                   {.name = u"why"_s,
                    .description = u"If urgent, what it needs in 3 to 7 words, like: needs your answer before 3pm. "
                                   "Otherwise empty"_s}},
    };
}

Urgency urgency(const LanguageModel::Answer& answer) {
    return {.urgent = answer.value(u"urgent"_s) == "true"_L1, .why = answer.value(u"why"_s)};
}

} // namespace fendrel::UrgencyQuestion
