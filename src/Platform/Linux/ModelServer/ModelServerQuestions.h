#pragma once

#include "Ports/LanguageModel.h"

#include <cstdint>
#include <map>
#include <memory>

namespace fendrel {

/// Lets one question of each purpose be asked at a time; the others of that purpose wait, and the newest goes first:
/// it is about what the user sees now.
class ModelServerQuestions {
public:
    /// Asks at once, whatever else is being asked. The callback never comes from inside.
    using Ask = std::function<Handle(const Question&, LanguageModel::Answered)>;

    explicit ModelServerQuestions(Ask ask);

    Handle add(const Question& question, LanguageModel::Answered answered);
    bool isAsking() const;

private:
    struct Entry {
        Question question{};
        LanguageModel::Answered answered{};
        Handle request{}; ///< of the one that is being asked
    };
    struct Purpose {
        std::map<std::uint64_t, Entry> waiting{}; ///< the newest last
        std::map<std::uint64_t, Entry> asked{};   ///< none or one
    };
    struct State {
        Ask ask{};
        std::uint64_t nextID = 0;
        std::map<QString, Purpose> purposes{};
    };

    static void askNext(const std::shared_ptr<State>& state, const QString& name);

    std::shared_ptr<State> m_state;
};

} // namespace fendrel
