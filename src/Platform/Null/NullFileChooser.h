#pragma once

#include "Platform/Shared/AtNextTurn.h"
#include "Ports/FileChooser.h"

#include <utility>

namespace fendrel {

class NullFileChooser final : public FileChooser {
public:
    bool isAvailable() const override { return false; }
    Handle open(const FileQuestion&, Done done) override { return refuse(std::move(done)); }
    Handle save(const FileQuestion&, Done done) override { return refuse(std::move(done)); }

private:
    static Handle refuse(Done done) {
        return atNextTurn([done = std::move(done)] { done(Choice::failure(NoFile::failed)); });
    }
};

} // namespace fendrel
