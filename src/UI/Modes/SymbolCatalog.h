#pragma once

#include <QList>
#include <QString>

namespace fendrel {

/// A symbol that a mode can have.
struct SymbolChoice {
    QString name{};  ///< of its picture
    QString label{}; ///< for people
    bool operator==(const SymbolChoice&) const = default;
};

/// All symbols that the program has, found by words as people say them: each word has to begin one of a symbol's own.
/// Without words all of them; those that suit a mode come first.
QList<SymbolChoice> findSymbols(const QString& words);
QString symbolLabel(const QString& name);

} // namespace fendrel
