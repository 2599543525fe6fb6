#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace fendrel {

/// Somebody else's work that Fendrel is built on.
struct Dependency {
    QString name{};
    QString licence{};
    QString purpose{};      ///< for the user
    QStringList packages{}; ///< of the distribution; the first has the full text of the licence, if there is one
};

/// All that is part of Fendrel when it runs, by name.
QList<Dependency> dependencies();

} // namespace fendrel
