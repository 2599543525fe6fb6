#pragma once

#include "Platform/Linux/Desktop/BusCall.h"

#include <QString>
#include <QVariant>

namespace fendrel {

/// One property of the service in which Xfce's programs keep their settings, which starts when it is asked.
class XfconfProperty {
public:
    using ReadDone = std::function<void(const std::optional<QVariant>&)>; ///< nothing: there is no such service
    using WriteDone = std::function<void(bool isWritten)>;

    XfconfProperty(QString channel, QString property)
        : m_channel(std::move(channel)), m_property(std::move(property)) {}

    /// An invalid value means that nobody set it.
    Handle read(const WaitUntil& deadline, ReadDone done) const;
    Handle write(const QVariant& value, const WaitUntil& deadline, WriteDone done) const;

private:
    QDBusMessage call(const QString& method) const;

    QString m_channel;
    QString m_property;
};

} // namespace fendrel
