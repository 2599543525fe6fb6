#pragma once

#include "Ports/Trash.h"

namespace fendrel {

class NullTrash final : public Trash {
public:
    bool isEmpty() const override { return true; }
    void add(const QStringList& paths, std::function<void(const QStringList&)> done) override { done(paths); }
    void open() override {}
    void empty(std::function<void(bool)> done) override { done(false); }
};

} // namespace fendrel
