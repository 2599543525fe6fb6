#include "Dock/DockReplacement.h"

#include "Base/Log.h"
#include "Dock/SavedDockSettings.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace fendrel {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

const QString isOnKey = u"replaceDock"_s;
const QString savedKey = u"savedDockSettings"_s;

} // namespace

DockReplacement::DockReplacement(SystemDock& dock, PointerGuard& pointer, Displays& displays, SettingsStore& settings,
                                 Clock& clock)
    : m_dock(dock),
      m_displays(displays),
      m_settings(settings),
      m_clock(clock),
      m_edgeGuard(pointer, displays, clock),
      m_isOn(settings.flag(isOnKey)) {
    m_edgeGuard.dockEdges = [this] { return m_dock.edges(); };
}

void DockReplacement::settle() {
    m_edgeGuard.setOn(m_isOn);
    m_edgeGuard.updateEdges();
    if (m_isOn)
        hideDock();
    else if (saved())
        restoreDock();
    else
        showLeftover();
    Q_EMIT changed();
}

void DockReplacement::set(bool on) {
    if (on == m_isOn)
        return;
    m_isOn = on;
    m_settings.set(isOnKey, on);
    m_edgeGuard.setOn(on);
    if (on)
        hideDock();
    else
        restoreDock();
    Q_EMIT changed();
}

QString DockReplacement::dockName() const {
    const auto dock = m_dock.running();
    return dock ? m_dock.name(*dock) : QString();
}

void DockReplacement::hideDock() {
    m_watch.reset();
    const auto dock = m_dock.running();
    const auto before = saved();
    if (before && (!dock || before->dock != *dock)) {
        // The one that was hidden gave its place to another, or to none.
        restoreDock([this] {
            if (m_dock.running() && !saved())
                hideDock();
        });
        return;
    }
    if (!dock)
        return;
    m_step = m_dock.read(*dock, [this, dock = *dock](const std::optional<Settings>& current) {
        if (!current)
            qCWarning(logDesktop).noquote() << "The settings of" << m_dock.name(dock) << "can't be read";
        else if (saved())
            hideSaved(*current);
        else
            save(*current);
    });
}

void DockReplacement::save(const Settings& current) {
    // Hidden already, and nobody knows how it was: an earlier run's record was lost.
    m_settings.set(savedKey, toJson(isHiding(current) ? Settings{.dock = current.dock} : current));
    m_step = m_settings.whenStored([this, current](bool isStored) {
        if (isStored) {
            hideSaved(current);
            return;
        }
        qCWarning(logDesktop) << "The dock is not hidden: how it was could not be written down";
        clearSaved();
    });
}

void DockReplacement::hideSaved(const Settings& current) {
    if (isHiding(current))
        return;
    m_step = m_dock.write(hidingSettings(current.dock), [this, dock = current.dock](bool isWritten) {
        if (!isWritten) {
            qCWarning(logDesktop).noquote() << "Couldn't hide" << m_dock.name(dock);
            return;
        }
        m_dock.restart(dock);
        watch(dock, 0);
    });
}

/// A dock that does not take up its new settings still keeps its space on the screen.
void DockReplacement::watch(const QString& dock, std::size_t attempt) {
    static constexpr std::array<Clock::Duration, 3> pauses{5s, 15s, 30s};
    if (attempt == pauses.size())
        return;
    m_watch = m_clock.after(pauses.at(attempt), [this, dock, attempt] {
        m_watch = m_dock.read(dock, [this, dock, attempt](const std::optional<Settings>& current) {
            if (!m_isOn || !current || !isHiding(*current) || !isSpaceHeld())
                return;
            m_dock.restart(dock);
            watch(dock, attempt + 1);
        });
    });
}

bool DockReplacement::isSpaceHeld() const {
    constexpr int mostHeld = 20;
    return std::ranges::any_of(m_displays.all(), [](const Display& display) {
        const QRect& frame = display.frame;
        const QRect& free = display.workArea;
        return std::max({frame.bottom() - free.bottom(), free.left() - frame.left(), frame.right() - free.right()}) >
               mostHeld;
    });
}

void DockReplacement::restoreDock(std::function<void()> done) {
    m_watch.reset();
    m_step.reset();
    const auto before = saved();
    if (!before) {
        done();
        return;
    }
    m_step = m_dock.read(before->dock, [this, before = *before, done](const std::optional<Settings>& current) {
        if (current == before) {
            clearSaved();
            done();
            return;
        }
        m_step = m_dock.write(before, [this, dock = before.dock, done](bool isWritten) {
            if (isWritten) {
                m_dock.restart(dock);
                clearSaved();
            } else {
                qCWarning(logDesktop).noquote() << "Couldn't give back" << m_dock.name(dock);
            }
            done();
        });
    });
}

/// Hidden by an earlier run that left no record: its defaults are the best guess.
void DockReplacement::showLeftover() {
    const auto dock = m_dock.running();
    if (!dock)
        return;
    m_step = m_dock.read(*dock, [this](const std::optional<Settings>& current) {
        if (!current || !isHiding(*current))
            return;
        m_step = m_dock.write({.dock = current->dock}, [this, dock = current->dock](bool) { m_dock.restart(dock); });
    });
}

void DockReplacement::stop(std::function<void()> done) {
    constexpr auto patience =
        2s; // for a service that does not answer: the next start gives back what this one could not
    m_edgeGuard.setOn(false);
    m_isOn = false; // not in the settings: the next start hides it again
    const auto once = std::make_shared<std::function<void()>>(std::move(done));
    const auto finish = [once] {
        if (const auto run = std::exchange(*once, {}))
            run();
    };
    m_patience = m_clock.after(patience, finish);
    restoreDock(finish);
}

std::optional<SystemDockSettings> DockReplacement::saved() const {
    const auto record = m_settings.read<QByteArray>(savedKey);
    return record ? systemDockSettingsFromJson(*record) : std::nullopt;
}

void DockReplacement::clearSaved() {
    m_settings.remove(savedKey);
}

} // namespace fendrel
