#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace fendrel {

/// How the user of this system gets one thing that Fendrel could make use of.
struct Remedy {
    QStringList page{}; ///< opens what the user sees to it with, mostly the desktop's settings; empty: there is nothing
    QString command{};  ///< what the user can run in a terminal; empty: nothing is known, or it was run
    bool isInstalled{}; ///< what the command would install is there
    bool operator==(const Remedy&) const = default;
};

/// The remedies by the names that `Capability` has for these things.
class Remedies {
public:
    virtual ~Remedies() = default;

    /// Looks at what there is now, on the disk too. Any thread.
    virtual QHash<QString, Remedy> find() const = 0;
    /// Main thread.
    virtual void open(const QStringList& page) = 0;
};

} // namespace fendrel
