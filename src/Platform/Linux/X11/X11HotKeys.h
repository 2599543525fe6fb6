#pragma once

#include "Platform/Linux/X11/KeyMap.h"
#include "Ports/HotKeys.h"

#include <QObject>

#include <map>
#include <memory>

namespace fendrel {

/// Grabs keys on the root window, once for every combination of lock keys, since to the server those are modifiers
/// like others. Another layout of the keyboard moves the grabs to where their labels are then.
class X11HotKeys : public QObject, public HotKeys {
    Q_OBJECT
public:
    explicit X11HotKeys(std::shared_ptr<X11Connection> connection);
    ~X11HotKeys() override;

    std::optional<Handle> grab(int modifiers, const QString& key, std::function<void()> onPressed) override;
    void yieldKeyboard() override;
    QString label(std::uint32_t nativeScanCode) const override { return m_map.label(nativeScanCode); }

private:
    struct Combination {
        std::uint16_t modifiers{};
        xcb_keycode_t key{};
        bool operator==(const Combination&) const = default;
    };
    struct HotKey {
        int modifiers{};
        QString label{};
        std::function<void()> onPressed{};
        std::optional<Combination> grabbed{}; ///< nothing while the layout has no such key
    };

    void handle(const xcb_generic_event_t& event);
    void handlePress(const xcb_key_press_event_t& press);
    void readLocks();
    std::optional<Combination> take(const HotKey& hotKey) const;
    void letGo(const Combination& combination) const;
    void letGo(int id);
    void grabAnew();

    std::shared_ptr<X11Connection> m_connection;
    KeyMap m_map;
    QList<std::uint16_t> m_locks; ///< every combination of lock keys, none of them included
    std::uint16_t m_everyLock{};
    std::map<int, HotKey> m_hotKeys;
    int m_lastID{};
    std::pair<xcb_keycode_t, xcb_timestamp_t> m_lastRelease;
    bool m_isLayoutNew{};
};

} // namespace fendrel
