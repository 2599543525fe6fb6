#pragma once

#include "Base/Handle.h"

#include <QDeadlineTimer>
#include <QString>

#include <functional>
#include <optional>

namespace fendrel {

struct ConfigurationKey {
    QString schema{};
    QString key{};
    QString path{}; ///< of a schema that has no place of its own
};

/// Where GTK desktops and many programs keep their settings. Values are text as `gsettings` takes and prints it: true,
/// 12, 'left', ['a', 'b']. A schema or a key that is not installed reads as nothing. Main thread.
class DesktopConfiguration {
public:
    virtual ~DesktopConfiguration() = default;

    virtual std::optional<QString> value(const ConfigurationKey& key) const = 0; ///< the default where nobody set it
    virtual bool isSet(const ConfigurationKey& key) const = 0;                   ///< by the user
    /// False where it may not be written, or what the key cannot hold. It reaches the disk a little later.
    virtual bool write(const ConfigurationKey& key, const QString& value) = 0;
    virtual bool reset(const ConfigurationKey& key) = 0;
    virtual bool flush(QDeadlineTimer deadline) = 0; ///< blocks until what was written is on the disk
    /// Runs when what was written so far, by others too, is on the disk, or was refused and has its old value again.
    virtual Handle whenStored(std::function<void()> run) = 0;
    /// Runs whenever the value became another, whoever wrote it.
    virtual Handle watch(const ConfigurationKey& key, std::function<void()> run) = 0;
};

} // namespace fendrel
