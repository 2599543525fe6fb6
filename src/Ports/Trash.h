#pragma once

#include <QStringList>

#include <functional>

namespace fendrel {

/// The user's trash. Main thread; moving and deleting happen in the background.
class Trash {
public:
    virtual ~Trash() = default;
    virtual bool isEmpty() const = 0;
    std::function<void()> onChanged = [] {};

    /// `done` gets the paths that could not be moved there; it does not come when the program ends before.
    virtual void add(const QStringList& paths, std::function<void(const QStringList& failed)> done) = 0;
    virtual void open() = 0;                              ///< shows it in the file manager
    virtual void empty(std::function<void(bool)> done) = 0; ///< deletes what is in it, for good
};

} // namespace fendrel
