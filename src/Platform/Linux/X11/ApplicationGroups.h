#pragma once

#include "Platform/Linux/Applications/ApplicationCatalog.h"
#include "Platform/Linux/X11/HiddenWindows.h"
#include "Platform/Linux/X11/X11Windows.h"
#include "Ports/Applications.h"

#include <QHash>
#include <QList>
#include <QObject>

#include <memory>
#include <optional>

namespace fendrel {

/// Which windows make up which running application. Main thread.
///
/// An application is a process, with two exceptions, which get a negative number in place of a process id: one that
/// runs on another machine, and every further application that a process shows besides its first (an office suite's
/// programs, a browser's web applications). A dialog belongs to the application whose window it stands over, whoever
/// made it: sandboxed programs have their file dialogs shown by a helper.
class ApplicationGroups : public QObject {
    Q_OBJECT
public:
    struct Group {
        RunningApp app{};
        QList<xcb_window_t> windows{};
    };

    ApplicationGroups(std::shared_ptr<X11Windows> windows, std::shared_ptr<ApplicationCatalog> catalog, Clock& clock);

    X11Windows& windows() const { return *m_windows; }
    ApplicationCatalog& catalog() const { return *m_catalog; }
    HiddenWindows& hidden() { return m_hidden; }

    QList<RunningApp> running() const;
    std::optional<Group> find(qint64 pid) const; ///< its windows: the last active one first
    std::optional<qint64> ownerOf(xcb_window_t window) const;

    /// The application of the active window.
    const std::optional<RunningApp>& front() const { return m_front; }

    /// To be called when the catalogue changed: windows may have other names now.
    void refreshNames();

Q_SIGNALS:
    void groupsChanged();
    void frontChanged();

private:
    /// A window's own process (negative when it is unknown), and the application that it shows.
    struct Origin {
        qint64 process{};
        ApplicationCatalog::Name name{};
        bool isWebApplication{};
    };
    using Application = std::pair<qint64, QString>; ///< process and identifier

    const X11Window& leaderOf(const X11Window& window) const;
    const Origin& originOf(const X11Window& window);
    const ProcessFacts& factsOf(qint64 process);
    void forgetTheGone();
    void assignNumbers();
    void regroup();
    void readFront();

    std::shared_ptr<X11Windows> m_windows;
    std::shared_ptr<ApplicationCatalog> m_catalog;
    Clock& m_clock;
    HiddenWindows m_hidden;
    QHash<qint64, ProcessFacts> m_facts;
    QHash<xcb_window_t, Origin> m_origins;
    QHash<Application, qint64> m_numbers; ///< what each application goes by as long as it has windows
    QHash<xcb_window_t, qint64> m_owners;
    QHash<qint64, Group> m_groups;
    std::optional<RunningApp> m_front;
};

} // namespace fendrel
