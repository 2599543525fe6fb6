#include "Platform/Linux/ModelServer/ModelServerQuestions.h"

#include <algorithm>
#include <utility>

namespace fendrel {

ModelServerQuestions::ModelServerQuestions(Ask ask) : m_state(std::make_shared<State>()) {
    m_state->ask = std::move(ask);
}

Handle ModelServerQuestions::add(const Question& question, LanguageModel::Answered answered) {
    const auto id = m_state->nextID++;
    const QString name = question.schemaName;
    m_state->purposes[name].waiting.emplace(id, Entry{question, std::move(answered)});
    askNext(m_state, name);
    return Handle([weak = std::weak_ptr(m_state), name, id] {
        const auto state = weak.lock();
        if (!state)
            return;
        Purpose& purpose = state->purposes[name];
        purpose.waiting.erase(id);
        if (purpose.asked.erase(id) > 0)
            askNext(state, name);
    });
}

bool ModelServerQuestions::isAsking() const {
    return std::ranges::any_of(m_state->purposes, [](const auto& each) { return !each.second.asked.empty(); });
}

void ModelServerQuestions::askNext(const std::shared_ptr<State>& state, const QString& name) {
    Purpose& purpose = state->purposes[name];
    if (!purpose.asked.empty() || purpose.waiting.empty())
        return;
    const auto newest = std::prev(purpose.waiting.end());
    const auto id = newest->first;
    Entry& entry = purpose.asked.insert(purpose.waiting.extract(newest)).position->second;
    entry.request = state->ask(entry.question, [weak = std::weak_ptr(state), name, id](const auto& answer) {
        const auto alive = weak.lock();
        if (!alive)
            return;
        const auto ended = alive->purposes[name].asked.extract(id);
        // Before the next one goes out: whoever is told may drop it, or have a newer one.
        ended.mapped().answered(answer);
        askNext(alive, name);
    });
}

} // namespace fendrel
