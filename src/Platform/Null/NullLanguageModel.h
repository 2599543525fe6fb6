#pragma once

#include "Platform/Shared/AtNextTurn.h"
#include "Ports/LanguageModel.h"

#include <QCoreApplication>

#include <utility>

namespace fendrel {

class NullLanguageModel final : public LanguageModel {
public:
    bool isAvailable() const override { return false; }
    QString unavailableReason() const override {
        return QCoreApplication::translate("ModelServer", "There is no language model on this computer.");
    }
    void prewarm(const Question&) override {}
    Handle ask(const Question&, Answered answered) override {
        return atNextTurn([answered = std::move(answered)] {
            answered(Result<Answer, QString>::failure(QStringLiteral("there is no language model")));
        });
    }
};

} // namespace fendrel
