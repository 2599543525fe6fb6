#pragma once

#include <QString>

namespace fendrel {

/// How the user of this system gets what Fendrel could make use of, by the names that `Capability` has for these
/// things. Main thread.
class Remedies {
public:
    virtual ~Remedies() = default;

    /// Whether there is a program where the user sees to it: mostly a page of the desktop's settings.
    virtual bool hasPage(const QString& thing) const = 0;
    virtual void openPage(const QString& thing) = 0;
    /// What the user can run in a terminal to get it; empty: nothing is known here.
    virtual QString command(const QString& thing) const = 0;
};

} // namespace fendrel
