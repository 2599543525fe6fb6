#include "Platform/Linux/Keyring/Keyring.h"

#include "Base/Log.h"

#include <libsecret/secret.h>

#include <array>
#include <cstring>

namespace fendrel {

namespace {

using Problem = SecretStore::Problem;

struct Release {
    void operator()(SecretService* service) const { g_object_unref(service); }
    void operator()(SecretCollection* collection) const { g_object_unref(collection); }
    void operator()(SecretValue* value) const { secret_value_unref(value); }
    void operator()(GHashTable* table) const { g_hash_table_unref(table); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GList* objects) const { g_list_free_full(objects, g_object_unref); }
};

template<class Type>
using Owned = std::unique_ptr<Type, Release>;

/// What the library's objects hear of the bus while this lives is for this thread, and is let go with them.
class OwnContext {
public:
    OwnContext() : m_context(g_main_context_new()) { g_main_context_push_thread_default(m_context); }
    ~OwnContext() {
        while (g_main_context_iteration(m_context, FALSE) != FALSE) {
        }
        g_main_context_pop_thread_default(m_context);
        g_main_context_unref(m_context);
    }
    OwnContext(const OwnContext&) = delete;
    OwnContext& operator=(const OwnContext&) = delete;

private:
    GMainContext* m_context;
};

/// Takes the error of a call, if there was one.
class Failure {
public:
    ~Failure() { g_clear_error(&m_error); }
    Failure() = default;
    Failure(const Failure&) = delete;
    Failure& operator=(const Failure&) = delete;

    GError** place() { return &m_error; }
    explicit operator bool() const { return m_error != nullptr; }
    bool is(GQuark domain, int code) const {
        return m_error != nullptr && m_error->domain == domain && m_error->code == code;
    }

    Problem problem() const {
        static constexpr std::array absent{G_DBUS_ERROR_SERVICE_UNKNOWN,    G_DBUS_ERROR_NAME_HAS_NO_OWNER,
                                           G_DBUS_ERROR_NO_SERVER,          G_DBUS_ERROR_SPAWN_EXEC_FAILED,
                                           G_DBUS_ERROR_SPAWN_CHILD_EXITED, G_DBUS_ERROR_SPAWN_FAILED};
        for (const auto code : absent) {
            if (is(G_DBUS_ERROR, code))
                return Problem::missing;
        }
        if (is(SECRET_ERROR, SECRET_ERROR_IS_LOCKED) || is(G_IO_ERROR, G_IO_ERROR_CANCELLED))
            return Problem::locked;
        // Not the text: nobody knows what a keyring puts into it.
        if (m_error != nullptr)
            qCWarning(logDesktop) << "The keyring failed:" << g_quark_to_string(m_error->domain) << m_error->code;
        return Problem::failed;
    }

private:
    GError* m_error = nullptr;
};

const SecretSchema& schema() {
    static const SecretSchema schema = [] {
        SecretSchema made{};
        made.name = "org.fendrel.Fendrel.Secret";
        made.flags = SECRET_SCHEMA_NONE;
        made.attributes[0] = {.name = "service", .type = SECRET_SCHEMA_ATTRIBUTE_STRING};
        made.attributes[1] = {.name = "account", .type = SECRET_SCHEMA_ATTRIBUTE_STRING};
        return made;
    }();
    return schema;
}

Owned<GHashTable> attributes(const SecretStore::Item& item) {
    Owned<GHashTable> table(g_hash_table_new_full(g_str_hash, g_str_equal, g_free, g_free));
    const auto insert = [&](const char* name, const QString& value) {
        g_hash_table_insert(table.get(), g_strdup(name), g_strdup(value.toUtf8().constData()));
    };
    insert("service", item.service);
    insert("account", item.account);
    return table;
}

GCancellable* cancellable(const KeyringPatience& patience) {
    return static_cast<GCancellable*>(patience.token());
}

/// One conversation with the service. Where nobody provides it, this is known at once.
class Conversation {
public:
    explicit Conversation(const KeyringPatience& patience) : m_patience(patience) {
        Failure failure;
        m_service.reset(secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION,
                                                 cancellable(patience), failure.place()));
        if (!m_service)
            m_problem = failure.problem();
    }

    explicit operator bool() const { return m_service != nullptr; }
    Problem problem() const { return m_problem; }
    SecretService* get() const { return m_service.get(); }

    Owned<GList> search(const SecretStore::Item& item, int flags, Failure& failure) const {
        return Owned<GList>(secret_service_search_sync(m_service.get(), &schema(), attributes(item).get(),
                                                       static_cast<SecretSearchFlags>(flags), cancellable(m_patience),
                                                       failure.place()));
    }

    /// The keyring that new items go to; null where there is none yet.
    Owned<SecretCollection> collection(Failure& failure) const {
        return Owned<SecretCollection>(secret_collection_for_alias_sync(m_service.get(), SECRET_COLLECTION_DEFAULT,
                                                                        SECRET_COLLECTION_NONE, cancellable(m_patience),
                                                                        failure.place()));
    }

    /// Asks the user. `object` is an item or a keyring.
    std::optional<Problem> unlock(void* object) const {
        GList objects{.data = object, .next = nullptr, .prev = nullptr};
        Failure failure;
        const int count =
            secret_service_unlock_sync(m_service.get(), &objects, cancellable(m_patience), nullptr, failure.place());
        if (failure)
            return failure.problem();
        return count > 0 ? std::nullopt : std::optional(Problem::locked);
    }

    std::optional<Problem> unlockCollection() const {
        Failure failure;
        const auto found = collection(failure);
        if (failure)
            return failure.problem();
        if (!found || secret_collection_get_locked(found.get()) == FALSE)
            return {};
        return unlock(found.get());
    }

private:
    const KeyringPatience& m_patience;
    Owned<SecretService> m_service;
    Problem m_problem = Problem::missing;
};

std::optional<Problem> outcome(gboolean isDone, const Failure& failure) {
    return isDone != FALSE ? std::nullopt : std::optional(failure.problem());
}

} // namespace

KeyringPatience::KeyringPatience() : m_token(g_cancellable_new(), [](void* token) { g_object_unref(token); }) {}

void KeyringPatience::end() {
    g_cancellable_cancel(cancellable(*this));
}

namespace keyring {

SecretStore::Secret read(const SecretStore::Item& item, const KeyringPatience& patience) {
    using Secret = SecretStore::Secret;
    const OwnContext context;
    const Conversation conversation(patience);
    if (!conversation)
        return Secret::failure(conversation.problem());
    Failure failure;
    const auto items = conversation.search(item, SECRET_SEARCH_LOAD_SECRETS, failure);
    if (failure)
        return Secret::failure(failure.problem());
    if (!items) {
        // Some services tell nothing of what is in a keyring that is locked.
        const auto collection = conversation.collection(failure);
        const bool isLocked = collection && secret_collection_get_locked(collection.get()) != FALSE;
        return isLocked ? Secret::failure(Problem::locked) : Secret(std::optional<QString>());
    }
    auto* found = static_cast<SecretItem*>(items->data);
    if (secret_item_get_locked(found) != FALSE)
        return Secret::failure(Problem::locked);
    const Owned<SecretValue> value(secret_item_get_secret(found));
    if (!value)
        return Secret::failure(Problem::failed);
    gsize length = 0;
    const char* bytes = secret_value_get(value.get(), &length);
    return Secret(std::optional(QString::fromUtf8(bytes, static_cast<qsizetype>(length))));
}

std::optional<Problem> save(const SecretStore::Item& item, const QString& label, const QString& secret,
                            const KeyringPatience& patience) {
    const OwnContext context;
    const Conversation conversation(patience);
    if (!conversation)
        return conversation.problem();
    QByteArray bytes = secret.toUtf8();
    const Owned<SecretValue> value(secret_value_new(bytes.constData(), bytes.size(), "text/plain"));
    explicit_bzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
    Failure failure;
    const auto items = conversation.search(item, SECRET_SEARCH_NONE, failure);
    if (failure)
        return failure.problem();
    if (items) {
        auto* found = static_cast<SecretItem*>(items->data);
        if (secret_item_get_locked(found) != FALSE) {
            if (const auto problem = conversation.unlock(found))
                return problem;
        }
        return outcome(secret_item_set_secret_sync(found, value.get(), cancellable(patience), failure.place()),
                       failure);
    }
    if (const auto problem = conversation.unlockCollection())
        return problem;
    // Where there is no keyring yet, this makes one, and the user chooses its password.
    const auto isStored =
        secret_service_store_sync(conversation.get(), &schema(), attributes(item).get(), SECRET_COLLECTION_DEFAULT,
                                  label.toUtf8().constData(), value.get(), cancellable(patience), failure.place());
    return outcome(isStored, failure);
}

std::optional<Problem> remove(const SecretStore::Item& item, const KeyringPatience& patience) {
    const OwnContext context;
    const Conversation conversation(patience);
    if (!conversation)
        return conversation.problem();
    Failure failure;
    const auto items = conversation.search(item, SECRET_SEARCH_ALL, failure);
    if (failure)
        return failure.problem();
    for (const GList* each = items.get(); each != nullptr; each = each->next) {
        auto* found = static_cast<SecretItem*>(each->data);
        if (secret_item_get_locked(found) != FALSE) {
            if (const auto problem = conversation.unlock(found))
                return problem;
        }
        if (secret_item_delete_sync(found, cancellable(patience), failure.place()) == FALSE)
            return failure.problem();
    }
    return {};
}

std::optional<Problem> unlock(const KeyringPatience& patience) {
    const OwnContext context;
    const Conversation conversation(patience);
    return conversation ? conversation.unlockCollection() : conversation.problem();
}

} // namespace keyring
} // namespace fendrel
