#pragma once

#include "Base/Handle.h"
#include "Base/Result.h"

#include <QString>

#include <functional>
#include <optional>

namespace fendrel {

/// The system's keyring: one short secret for each service and account. Main thread; nothing blocks. Answers come
/// later, never from inside the call and never after the handle is dropped. What was asked is done all the same.
class SecretStore {
public:
    enum class Problem {
        missing, ///< this system has no keyring
        locked,  ///< the user did not unlock it
        failed,
    };
    struct Item {
        QString service{};
        QString account{};
        bool operator==(const Item&) const = default;
    };
    using Secret = Result<std::optional<QString>, Problem>; ///< nothing: there is none
    using Done = std::function<void(std::optional<Problem>)>;

    virtual ~SecretStore() = default;

    /// Never asks the user to unlock the keyring; the others may, and then wait for the user.
    virtual Handle read(const Item& item, std::function<void(const Secret&)> done) = 0;
    /// Replaces the secret of an item that is there, which keeps its label.
    virtual Handle save(const Item& item, const QString& label, const QString& secret, Done done) = 0;
    virtual Handle remove(const Item& item, Done done) = 0;
    virtual Handle unlock(Done done) = 0;
};

} // namespace fendrel
