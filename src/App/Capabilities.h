#pragma once

#include "Base/Handle.h"
#include "Base/Worker.h"
#include "Ports/Platform.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

namespace fendrel {

class AppController;

/// Something of this system that Fendrel makes use of.
struct Capability {
    Q_GADGET
public:
    enum class State {
        unknown, ///< cannot be told now
        works,
        missing, ///< could work here
        locked,  ///< is here, and waits for its user
        absent,  ///< this system has nothing of the kind
    };
    Q_ENUM(State)
    QString id{};
    State state{};
    QString reason{};                     ///< for the user: why it does not work
    std::optional<BrowserHome> browser{}; ///< of the ones that stand for a browser, which the id names too
    Remedy remedy{};                      ///< how to get it here
    bool operator==(const Capability& other) const {
        return id == other.id && state == other.state && reason == other.reason && remedy == other.remedy;
    }
};

/// What is known of the system at one moment.
struct CapabilityFacts {
    enum class Keyring { unknown, ready, missing, locked, failed };
    struct Browser {
        BrowserHome home{};
        bool isRunning{};
        bool isConnected{};
    };

    bool readsTitles{};
    QString messagesProblem{}; ///< empty while messages are held
    QString modelProblem{};    ///< empty while a model answers
    Keyring keyring{};
    QList<Browser> browsers{}; ///< those that were used here
    bool canHoldPointer{};
    bool isPointerHeld{true};   ///< or nobody wants it held
    QStringList takenHotKeys{}; ///< wanted, but another program's, or no keys of this keyboard
    bool hasStatusArea{};
    bool hasTransparency{};
    CalendarStore::Source calendar{};
    CalendarStore::Access calendarAccess{};
    std::optional<QHash<QString, Remedy>> remedies{}; ///< nothing before the first look
};

/// In the order in which they are shown.
QList<Capability> capabilities(const CapabilityFacts& facts);

/// What of this system works for Fendrel, as it changes: empty until somebody refreshes it for the first time. Main
/// thread.
class Capabilities : public QObject {
    Q_OBJECT
public:
    explicit Capabilities(AppController& controller);

    const QList<Capability>& all() const { return m_all; }
    /// Asks again what does not tell by itself: the keyring, the calendar, which browsers were used, what is installed,
    /// and hot keys that were refused.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    void gather();
    void look(); ///< at the disk
    QStringList takenHotKeys() const;
    QList<CapabilityFacts::Browser> browsers() const;

    AppController& m_controller;
    QList<Capability> m_all;
    bool m_readsTitles = false;
    CapabilityFacts::Keyring m_keyring{};
    QList<BrowserHome> m_usedBrowsers;
    std::optional<QHash<QString, Remedy>> m_remedies;
    Handle m_reading;
    Handle m_readingCalendar;
    std::unique_ptr<Worker> m_worker; ///< the last: nothing it posts arrives once it has ended
};

} // namespace fendrel
