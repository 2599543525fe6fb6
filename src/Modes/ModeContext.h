#pragma once

#include "Modes/Mode.h"
#include "Modes/ModeSnapshot.h"
#include "Ports/Clock.h"

#include <QObject>

#include <functional>
#include <map>
#include <optional>

namespace fendrel {

class Documents;
class LanguageModel;
class ModeEngine;
class Worker;
class Workspace;
struct DocumentOwner;

/// Remembers what was open in each mode when the user left it, and offers to bring it back. Main thread; the file is
/// written on the disk worker.
class ModeContext : public QObject {
    Q_OBJECT
public:
    using Snapshot = ModeSnapshot;
    using Page = ModeSnapshot::Page;
    using Document = ModeSnapshot::Document;
    struct Offer {
        Mode mode{};
        Snapshot snapshot{};
        bool operator==(const Offer&) const = default;
    };

    /// `folder` is where "Contexts.json" lives, which is read here; one that can't be read is kept aside.
    ModeContext(ModeEngine& engine, Workspace& workspace, Documents& documents, LanguageModel& model, Clock& clock,
                Worker& disk, const QString& folder);

    /// Hands pages to a browser that can be told of them; false when there is none.
    std::function<bool(const QStringList& urls)> openPages = [](const QStringList&) { return false; };
    std::function<void(const QUrl& address)> openAddress = [](const QUrl&) {}; ///< in the user's usual browser
    /// What the user looks at, where that is a page and may be kept.
    std::function<std::optional<Page>()> frontPage = [] { return std::optional<Page>(); };

    const ModeSnapshots& snapshots() const { return m_snapshots; } ///< of the modes that there are
    const std::optional<Offer>& offer() const { return m_offer; }
    /// Names of the documents that the last restoring found gone, until they are dismissed or some time has passed.
    const QStringList& missing() const { return m_missing; }

    void modeChanged(const Mode& newMode); ///< another mode was entered
    void modesEdited();                    ///< modes came, went or changed
    void saw(const Page& page);            ///< it became the current one of its browser
    void restore();                        ///< what is offered
    bool restore(const QString& modeID);   ///< whether there is something
    void dismiss();
    bool forget(const QString& modeID); ///< whether there was something
    void forgetAll();                   ///< of modes that are gone, too
    void setHovered(bool isHovered);    ///< the pointer is on the offer: it stays

Q_SIGNALS:
    void changed();

private:
    void save(const Mode& mode);
    DocumentOwner ownerOf(const QString& bundleID) const;
    void writeNote(const Snapshot& snapshot);
    void offerBack(const Mode& mode);
    void openAgain(const QList<Page>& pages, QStringList& apps);
    void open(const QStringList& apps, const QList<Document>& documents, const QList<QUrl>& gone);
    bool sortByModes();
    void tell();
    void scheduleHide(Clock::Duration after);

    ModeEngine& m_engine;
    Workspace& m_workspace;
    Documents& m_documents;
    LanguageModel& m_model;
    Clock& m_clock;
    Worker& m_disk;
    QString m_path;
    ModeSnapshots m_snapshots;
    ModeSnapshots m_ofGoneModes; ///< for as long as we run: a deletion may be taken back
    QString m_modeID;
    ContinuousTime m_enteredAt;
    QList<Page> m_pages;                  ///< seen since then
    Handle m_settling;                    ///< in the mode that was entered
    std::map<QString, Handle> m_findings; ///< of documents, by mode
    std::map<QString, Handle> m_notes;    ///< by mode
    Handle m_restoring;
    Handle m_patience; ///< with what that waits for
    std::optional<Offer> m_offer;
    QStringList m_missing;
    bool m_isHovered = false;
    Handle m_hide;
};

} // namespace fendrel
