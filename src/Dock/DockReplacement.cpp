#include "Dock/DockReplacement.h"

#include "Base/Log.h"
#include "Dock/SavedDockSettings.h"

#include <QJsonArray>
#include <QJsonDocument>

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
/// Of docks that could not be given back before another one took their place: an array of the same records.
const QString asideKey = u"otherSavedDockSettings"_s;

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
    if (m_isStopping)
        return;
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
            if (!m_dock.running())
                return;
            setAside();
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
    // Hidden already without a record of it, nobody knows how it was.
    const Settings unknown{.dock = current.dock};
    const auto aside = takeAside(current.dock);
    m_settings.set(savedKey, toJson(isHiding(current) ? aside.value_or(unknown) : current));
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
    if (const auto aside = takeAside(*dock)) {
        m_settings.set(savedKey, toJson(*aside));
        restoreDock();
        return;
    }
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
    m_isStopping = true;
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

void DockReplacement::setAside() {
    const auto record = m_settings.read<QByteArray>(savedKey);
    if (!record)
        return;
    auto others = QJsonDocument::fromJson(m_settings.read<QByteArray>(asideKey).value_or(QByteArray())).array();
    others.append(QJsonDocument::fromJson(*record).object());
    m_settings.set(asideKey, QJsonDocument(others).toJson(QJsonDocument::Compact));
    clearSaved();
}

std::optional<SystemDockSettings> DockReplacement::takeAside(const QString& dock) {
    const auto records = m_settings.read<QByteArray>(asideKey);
    if (!records)
        return {};
    std::optional<Settings> found;
    QJsonArray others;
    for (const auto& record : QJsonDocument::fromJson(*records).array()) {
        const auto settings = systemDockSettingsFromJson(QJsonDocument(record.toObject()).toJson());
        if (settings && settings->dock == dock)
            found = settings;
        else if (settings)
            others.append(record);
    }
    if (others.isEmpty())
        m_settings.remove(asideKey);
    else
        m_settings.set(asideKey, QJsonDocument(others).toJson(QJsonDocument::Compact));
    return found;
}

} // namespace fendrel
