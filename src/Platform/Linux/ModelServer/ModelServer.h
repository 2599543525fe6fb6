#pragma once

#include "Platform/Linux/ModelServer/ModelServerQuestions.h"
#include "Platform/Linux/ModelServer/ModelServerSearch.h"
#include "Ports/LanguageModel.h"

#include <memory>
#include <optional>

namespace fendrel {

/// A language model behind a model server on this machine: llama.cpp's, Ollama, or another that speaks the same chat
/// completions. It is looked for at the start, at every new choice, every 30 seconds, and when a question finds it
/// gone.
class ModelServer final : public LanguageModel {
public:
    /// `usualAddresses`, one at least, are tried while the user names no server.
    explicit ModelServer(Clock& clock, QStringList usualAddresses = ModelServer::usualAddresses());
    ~ModelServer() override;

    static QStringList usualAddresses();

    void choose(const ModelChoice& choice) override;
    bool isAvailable() const override { return m_server.has_value(); }
    QString unavailableReason() const override { return m_reason; }
    void prewarm(const Question& question) override;
    Handle ask(const Question& question, Answered answered) override;

private:
    void look();
    void looked(const ModelServerSearch::Found& found);
    void setUnavailable(const QString& reason);
    Handle askNow(const Question& question, Answered answered);

    Clock& m_clock;
    QStringList m_usualAddresses;
    LocalHttp m_http;
    ModelChoice m_choice;
    std::optional<FoundModelServer> m_server;
    QString m_reason;
    std::unique_ptr<ModelServerSearch> m_search;
    std::optional<Handle> m_firstLook; ///< until it begins
    Handle m_looks;
    QString m_prewarmed;
    Handle m_prewarming;
    ModelServerQuestions m_questions;
};

} // namespace fendrel
