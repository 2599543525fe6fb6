#include "Platform/Linux/Desktop/GSettingsConfiguration.h"

#include <QSemaphore>

#include <gio/gio.h>

#include <memory>
#include <thread>

namespace fendrel {

namespace {

struct Release {
    void operator()(GSettings* settings) const { g_object_unref(settings); }
    void operator()(GDBusConnection* connection) const { g_object_unref(connection); }
    void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
    void operator()(GSettingsSchemaKey* key) const { g_settings_schema_key_unref(key); }
    void operator()(GVariant* value) const { g_variant_unref(value); }
    void operator()(char* text) const { g_free(text); }
};

template<class Type>
using Owned = std::unique_ptr<Type, Release>;

/// A key that is known to exist. The library ends the process when it is asked for one that does not.
class OpenKey {
public:
    explicit OpenKey(const ConfigurationKey& key) : m_name(key.key.toUtf8()) {
        GSettingsSchemaSource* source = g_settings_schema_source_get_default();
        if (source == nullptr)
            return;
        const Owned<GSettingsSchema> schema(g_settings_schema_source_lookup(source, key.schema.toUtf8(), TRUE));
        if (!schema || g_settings_schema_has_key(schema.get(), m_name) == FALSE)
            return;
        const QByteArray path = key.path.toUtf8();
        const char* ownPath = g_settings_schema_get_path(schema.get());
        const bool hasPlace = ownPath != nullptr ? path.isEmpty() || path == ownPath
                                                 : path.startsWith('/') && path.endsWith('/') && !path.contains("//");
        if (!hasPlace)
            return;
        m_key.reset(g_settings_schema_get_key(schema.get(), m_name));
        m_settings.reset(g_settings_new_full(schema.get(), nullptr, ownPath != nullptr ? nullptr : path.constData()));
    }

    explicit operator bool() const { return m_settings != nullptr; }

    QString value() const {
        const Owned<GVariant> value(g_settings_get_value(m_settings.get(), m_name));
        return QString::fromUtf8(Owned<char>(g_variant_print(value.get(), FALSE)).get());
    }

    bool isSet() const { return Owned<GVariant>(g_settings_get_user_value(m_settings.get(), m_name)) != nullptr; }

    bool isWritable() const { return g_settings_is_writable(m_settings.get(), m_name) != FALSE; }

    bool write(const QString& text) {
        const GVariantType* type = g_settings_schema_key_get_value_type(m_key.get());
        const Owned<GVariant> value(g_variant_parse(type, text.toUtf8(), nullptr, nullptr, nullptr));
        return value && g_settings_schema_key_range_check(m_key.get(), value.get()) != FALSE && isWritable() &&
               g_settings_set_value(m_settings.get(), m_name, value.get()) != FALSE;
    }

    bool reset() {
        if (!isWritable())
            return false;
        g_settings_reset(m_settings.get(), m_name);
        return true;
    }

    void connect(GCallback callback, void* data) const {
        g_signal_connect(m_settings.get(), "changed::" + m_name, callback, data);
        value(); // what was never read is not told of
    }

    void disconnect(void* data) const { g_signal_handlers_disconnect_by_data(m_settings.get(), data); }

private:
    QByteArray m_name;
    Owned<GSettingsSchemaKey> m_key;
    Owned<GSettings> m_settings;
};

using Wanted = std::weak_ptr<std::function<void()>>;

/// The service takes one after the other: with its answer, whatever was sent to it before has been written. Where it
/// does not run nothing can be on its way.
void waitForOthers() {
    constexpr int milliseconds = 2000;
    const Owned<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (bus)
        Owned<GVariant>(g_dbus_connection_call_sync(bus.get(), "ca.desrt.dconf", "/ca/desrt/dconf/Writer/user",
                                                    "ca.desrt.dconf.Writer", "Init", nullptr, nullptr,
                                                    G_DBUS_CALL_FLAGS_NO_AUTO_START, milliseconds, nullptr, nullptr));
}

gboolean runIfWanted(void* data) {
    if (const auto run = static_cast<Wanted*>(data)->lock())
        (*run)();
    return G_SOURCE_REMOVE;
}

/// One key whose changes are told.
struct Watch {
    Watch(const ConfigurationKey& place, std::function<void()> changed) : key(place), run(std::move(changed)) {
        if (key)
            key.connect(G_CALLBACK(onChanged), this);
    }
    ~Watch() {
        if (key)
            key.disconnect(this); // a change on its way keeps the key longer than we do
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    static void onChanged(GSettings* /*settings*/, const char* /*name*/, void* data) {
        const auto run = static_cast<Watch*>(data)->run; // it may drop this watch
        run();
    }

    OpenKey key;
    std::function<void()> run;
};

} // namespace

std::optional<QString> GSettingsConfiguration::value(const ConfigurationKey& key) const {
    const OpenKey open(key);
    return open ? std::optional(open.value()) : std::nullopt;
}

bool GSettingsConfiguration::isSet(const ConfigurationKey& key) const {
    const OpenKey open(key);
    return open && open.isSet();
}

bool GSettingsConfiguration::write(const ConfigurationKey& key, const QString& value) {
    OpenKey open(key);
    return open && open.write(value);
}

bool GSettingsConfiguration::reset(const ConfigurationKey& key) {
    OpenKey open(key);
    return open && open.reset();
}

bool GSettingsConfiguration::flush(QDeadlineTimer deadline) {
    // The library waits for its service without a time-out.
    const auto written = std::make_shared<QSemaphore>();
    std::thread([written] {
        g_settings_sync();
        written->release();
    }).detach();
    return written->tryAcquire(1, static_cast<int>(deadline.remainingTime()));
}

Handle GSettingsConfiguration::whenStored(std::function<void()> run) {
    const auto wanted = std::make_shared<std::function<void()>>(std::move(run));
    std::thread([wanted = std::make_unique<Wanted>(wanted)]() mutable {
        g_settings_sync();
        waitForOthers();
        // The library's own loop, which Qt's runs in, may be told of something at any time, even when Qt's is gone.
        g_idle_add_full(G_PRIORITY_DEFAULT, runIfWanted, wanted.release(),
                        [](void* data) { delete static_cast<Wanted*>(data); });
    }).detach();
    return Handle([wanted] {}); // which is what keeps it
}

Handle GSettingsConfiguration::watch(const ConfigurationKey& key, std::function<void()> run) {
    return Handle([watch = std::make_shared<Watch>(key, std::move(run))] {}); // which is what keeps it
}

} // namespace fendrel
