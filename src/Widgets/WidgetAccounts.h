#pragma once

#include "Widgets/DockWidget.h"
#include "Widgets/Keychain.h"

#include <QList>
#include <QObject>
#include <QUrl>

#include <functional>
#include <map>
#include <optional>
#include <set>

namespace fendrel {

/// The services that widgets need a key for, and which of them have one. The keys are in the keyring and nowhere else;
/// it is not asked before `read`. Main thread.
class WidgetAccounts : public QObject {
    Q_OBJECT
public:
    enum class Service {
        github,
        stripe,
        lemonSqueezy,
        paddle,
        dodo,
        vercel,
        linear,
        sentry
    }; ///< stored by these names
    Q_ENUM(Service)

    struct Description {
        Service service{};
        QString name{};    ///< as people know it
        QUrl keyAddress{}; ///< where its user makes a key
    };
    using Problem = SecretStore::Problem;

    explicit WidgetAccounts(SecretStore& store) : m_keychain(store) {}

    /// The key of a service came or went: what was fetched with another one is out of date.
    std::function<void(Service)> onChanged = [](Service) {};

    static const QList<Description>& all(); ///< in the order in which lists show them
    static const Description& description(Service service);
    /// The services that a widget can show; empty where it needs none. One of them is enough.
    static QList<Service> usedBy(DockWidget widget);

    const std::set<Service>& connected() const { return m_connected; }
    /// Why it is not known whether the service has a key, or why the last change of it failed.
    std::optional<Problem> problem(Service service) const;
    bool isRead() const { return m_isRead; } ///< whether all of them were looked at
    bool isBusy(Service service) const;      ///< a change is on its way, perhaps waiting for the user

    /// The key of a service, which is not kept.
    Handle secret(Service service, std::function<void(const SecretStore::Secret&)> done) const;
    /// The same; nothing where the keyring has none or doesn't give it, which `connected` and `problem` know from then
    /// on. The caller learns of a key that came or went by this, not by `onChanged`.
    Handle key(Service service, std::function<void(const std::optional<QString>&)> done);

    /// Looks once which services have a key, one after the other.
    void read();
    void readAgain();
    void unlock(); ///< asks the user to, and reads again

    /// White space around the key is left out; when nothing remains nothing changes, and false is returned. `done`
    /// comes later, and not at all once this object is gone.
    bool save(
        const QString& key, Service service, SecretStore::Done done = [](auto) {});
    void remove(
        Service service, SecretStore::Done done = [](auto) {});

Q_SIGNALS:
    void changed();
    void wasRead(); ///< all of them

private:
    void readFrom(qsizetype position);
    void set(Service service, const SecretStore::Secret& found);
    void set(Service service, bool isConnected, std::optional<Problem> problem);
    SecretStore::Done finishing(int number, bool isConnected, SecretStore::Done done);

    Keychain m_keychain;
    std::set<Service> m_connected;
    std::map<Service, Problem> m_problems;
    bool m_isReadAsked = false;
    bool m_isRead = false;
    Handle m_reading;
    Handle m_unlocking;
    struct Change {
        Service service{};
        Handle handle{};
    };
    std::map<int, Change> m_changes; ///< those on their way, by their number
    int m_lastChange = 0;
};

} // namespace fendrel
