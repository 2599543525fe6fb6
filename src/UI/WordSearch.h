#pragma once

#include <QString>
#include <QStringList>

namespace fendrel {

/// The words of a text, without case, accents and what stands between them.
QStringList foldedWords(const QString& text);

/// Whether each wanted word begins one of these words; all are folded.
bool eachBeginsOne(const QStringList& wanted, const QStringList& words);

/// Whether each wanted word is somewhere in the text, also inside of another, in any case.
bool eachIsIn(const QStringList& wanted, const QString& text);

/// The text as HTML, with the words bold that a query finds.
QString markedText(const QString& text, const QString& query);

} // namespace fendrel
