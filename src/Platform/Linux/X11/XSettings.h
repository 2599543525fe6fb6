#pragma once

#include <QByteArrayView>
#include <QHash>
#include <QString>
#include <QVariant>

namespace fendrel {

using XSettings = QHash<QString, QVariant>; ///< int or QString

/// Reads the property in which a settings daemon publishes what it tells applications. What is broken ends the
/// reading; what came before stays. Colours, which nobody here wants, are left out.
XSettings parseXSettings(QByteArrayView property);

} // namespace fendrel
