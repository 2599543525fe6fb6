#pragma once

#include <QJsonValue>
#include <QString>

namespace fendrel::control {

/// An answer as plain text for people: "name: value" lines, parts of a part indented, lists one item a line.
QString plainText(const QJsonValue& value);

/// The answer to `modes`: identifier, name and a star, in columns that scripts can split at tabs.
QString modesText(const QJsonValue& modes);

/// A line for each learned answer: key, mode, what it is, source, certainty and date, with tabs between them.
QString answersText(const QJsonValue& answers);

/// A line for each mode of which something is remembered: mode, date, note, and the names of what was open, with tabs
/// between them.
QString contextsText(const QJsonValue& contexts);

/// A line for each kind of widget: identifier, title, category, sizes, whether it has a card, the modes that have it
/// with its size there, and its accounts with whether they are connected; with tabs between them.
QString widgetsText(const QJsonValue& widgets);

} // namespace fendrel::control
