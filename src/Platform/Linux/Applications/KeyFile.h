#pragma once

#include <QByteArrayView>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel {

/// A file of groups and keys, as desktops keep many things: group -> key -> value. Values are as they stand in the
/// file, without the blanks around them; what is neither a group nor a key is left out. Where a group or key comes
/// twice, the first one counts.
using KeyFile = QHash<QString, QHash<QString, QString>>;

/// Of keys like "Name[de]" only those of `locales`, where they are given: desktops translate into a hundred languages.
KeyFile parseKeyFile(QByteArrayView content, const std::optional<QStringList>& locales = {});
KeyFile readKeyFile(const QString& path); ///< empty when the file cannot be read

} // namespace fendrel
