#include "Modes/ModeContext.h"

#include "App/Workspace.h"
#include "Base/JsonFile.h"
#include "Base/Log.h"
#include "Base/OnWorker.h"
#include "Modes/ModeEngine.h"
#include "Modes/NoteQuestion.h"
#include "Modes/SiteName.h"
#include "Ports/Documents.h"

#include <QFileInfo>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto worthSaving = 120s;
constexpr auto stays = 30s;
constexpr auto staysAfterHover = 4s;
constexpr qsizetype mostTitles = 100;

/// A page that another mode lists was drifted to, and is nothing to come back to.
bool belongs(const QString& url, const Mode& mode, const ModeEngine& engine) {
    const QString host = siteName(QUrl(url)).value_or(QString());
    return Mode::site(host, mode.sites) || !engine.listingSite(host);
}

/// What of a snapshot still belongs to the mode, which may have been edited since.
ModeSnapshot fitting(ModeSnapshot snapshot, const Mode& mode, const ModeEngine& engine) {
    snapshot.apps.removeIf([&](const QString& app) { return !mode.apps.contains(app); });
    snapshot.documents.removeIf([&](const auto& document) { return !mode.apps.contains(document.bundleID); });
    snapshot.pages.removeIf([&](const auto& page) { return !belongs(page.url, mode, engine); });
    return snapshot;
}

} // namespace

ModeContext::ModeContext(ModeEngine& engine, Workspace& workspace, Documents& documents, LanguageModel& model,
                         Clock& clock, Worker& disk, const QString& folder)
    : m_engine(engine),
      m_workspace(workspace),
      m_documents(documents),
      m_model(model),
      m_clock(clock),
      m_disk(disk),
      m_path(folder + u"/Contexts.json"_s),
      m_modeID(engine.current().id),
      m_enteredAt(clock.continuousNow()) {
    const auto file = JsonFile::read(m_path);
    if (file)
        m_snapshots = decodeSnapshots(*file);
    else if (file.error() == JsonFile::ReadError::unreadable)
        JsonFile::keepAside(m_path);
    sortByModes();
}

void ModeContext::modeChanged(const Mode& newMode) {
    if (newMode.id == m_modeID)
        return;
    const ContinuousTime now = m_clock.continuousNow();
    const Mode* left = m_engine.mode(m_modeID); // nothing when it was deleted
    if (left && now - m_enteredAt >= worthSaving)
        save(*left);
    m_modeID = newMode.id;
    m_enteredAt = now;
    m_pages.clear();
    offerBack(newMode);
}

void ModeContext::saw(const Page& page) {
    if (belongs(page.url, m_engine.current(), m_engine))
        addPage(m_pages, page);
}

void ModeContext::save(const Mode& mode) {
    Snapshot snapshot{.modeID = mode.id, .savedAt = m_clock.now(), .pages = m_pages};
    QList<DocumentOwner> owners;
    for (const QString& bundleID : m_workspace.runningApps()) {
        if (!mode.apps.contains(bundleID))
            continue;
        snapshot.apps.append(bundleID);
        // Of a browser only the pages count that it tells of itself: its windows may be private ones.
        if (m_workspace.isBrowser(bundleID))
            continue;
        owners.append(ownerOf(bundleID));
        snapshot.titles += owners.last().titles;
    }
    for (const Page& page : snapshot.pages)
        snapshot.titles.append(page.title);
    snapshot.titles.removeAll(QString());
    snapshot.titles.removeDuplicates();
    if (snapshot.titles.size() > mostTitles)
        snapshot.titles.resize(mostTitles);

    m_snapshots.insert(mode.id, snapshot);
    tell();
    m_findings[mode.id] = m_documents.find(owners, [this, id = mode.id](const QList<OpenDocument>& found) {
        if (found.isEmpty() || !m_snapshots.contains(id))
            return;
        for (const OpenDocument& document : found)
            m_snapshots[id].documents.append(
                {.bundleID = document.bundleID, .url = document.file.toString(QUrl::FullyEncoded)});
        tell();
    });
    m_notes[mode.id].reset();
    writeNote(snapshot);
}

DocumentOwner ModeContext::ownerOf(const QString& bundleID) const {
    DocumentOwner owner{.bundleID = bundleID};
    for (const RunningApp& app : m_workspace.instances(bundleID))
        owner.pids.append(app.pid);
    for (const WindowInfo& window : m_workspace.windows(bundleID))
        owner.titles.append(window.title);
    return owner;
}

void ModeContext::writeNote(const Snapshot& snapshot) {
    if (snapshot.titles.isEmpty() || !m_model.isAvailable())
        return;
    m_notes[snapshot.modeID] =
        m_model.ask(NoteQuestion::about(snapshot.titles), [this, id = snapshot.modeID](const auto& answer) {
            if (!answer) {
                qCWarning(logModes).noquote() << "Model couldn't write a note:" << answer.error();
            } else if (const auto saved = m_snapshots.find(id); saved != m_snapshots.end()) {
                saved->note = NoteQuestion::note(*answer);
                tell();
            }
        });
}

void ModeContext::offerBack(const Mode& mode) {
    dismiss();
    const auto saved = m_snapshots.constFind(mode.id);
    if (saved == m_snapshots.constEnd())
        return;
    Offer offer{.mode = mode, .snapshot = fitting(*saved, mode, m_engine)};
    if (offer.snapshot.isEmpty())
        return;
    m_offer = std::move(offer);
    scheduleHide(stays);
    Q_EMIT changed();
}

void ModeContext::restore() {
    if (m_offer)
        restore(QString(m_offer->mode.id));
}

bool ModeContext::restore(const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || !m_snapshots.contains(modeID))
        return false;
    const Snapshot snapshot = fitting(m_snapshots[modeID], *mode, m_engine);
    dismiss();
    QStringList pages;
    for (const Page& page : snapshot.pages)
        pages.append(page.url);
    if (!pages.isEmpty())
        onOpenPages(pages);
    QList<DocumentOwner> owners;
    for (const Document& document : snapshot.documents) {
        if (m_workspace.running().contains(document.bundleID))
            owners.append(ownerOf(document.bundleID));
    }
    m_restoring = m_documents.find(owners, [this, snapshot](const QList<OpenDocument>& found) {
        QList<Document> wanted = snapshot.documents;
        wanted.removeIf([&](const Document& document) {
            return found.contains({.bundleID = document.bundleID, .file = QUrl(document.url)});
        });
        m_restoring = onWorker<QList<Document>>(
            m_disk,
            [wanted] {
                QList<Document> gone = wanted;
                gone.removeIf([](const Document& each) { return QFileInfo::exists(QUrl(each.url).toLocalFile()); });
                return gone;
            },
            [this, apps = snapshot.apps, wanted](const auto& gone) { open(apps, wanted, gone); });
    });
    return true;
}

/// The applications, with their documents where those are still there.
void ModeContext::open(const QStringList& apps, const QList<Document>& documents, const QList<Document>& gone) {
    for (const QString& app : apps) {
        QList<QUrl> files;
        for (const Document& document : documents) {
            if (document.bundleID == app && !gone.contains(document))
                files.append(QUrl(document.url));
        }
        if (!files.isEmpty())
            m_workspace.openFiles(app, files);
        else if (!m_workspace.hasVisibleWindow(app))
            m_workspace.open(app);
    }
    if (gone.isEmpty())
        return;
    for (const Document& document : gone)
        m_missing.append(QUrl(document.url).fileName());
    scheduleHide(stays);
    Q_EMIT changed();
}

void ModeContext::dismiss() {
    m_hide.reset();
    m_isHovered = false;
    if (!m_offer && m_missing.isEmpty())
        return;
    m_offer.reset();
    m_missing.clear();
    Q_EMIT changed();
}

bool ModeContext::forget(const QString& modeID) {
    if (modeID == m_modeID)
        m_pages.clear();
    m_ofGoneModes.remove(modeID);
    m_findings.erase(modeID);
    m_notes.erase(modeID);
    if (!m_snapshots.remove(modeID))
        return false;
    if (m_offer && m_offer->mode.id == modeID)
        dismiss();
    tell();
    return true;
}

void ModeContext::setHovered(bool isHovered) {
    if (std::exchange(m_isHovered, isHovered) == isHovered || (!m_offer && m_missing.isEmpty()))
        return;
    if (isHovered)
        m_hide.reset();
    else
        scheduleHide(staysAfterHover);
}

void ModeContext::scheduleHide(Clock::Duration after) {
    m_hide = m_clock.after(after, [this] { dismiss(); });
}

void ModeContext::modesEdited() {
    if (sortByModes())
        tell();
    if (!m_offer)
        return;
    const Mode* mode = m_engine.mode(m_offer->mode.id);
    if (!mode || !m_snapshots.contains(mode->id)) {
        dismiss();
        return;
    }
    Offer offer{.mode = *mode, .snapshot = fitting(m_snapshots[mode->id], *mode, m_engine)};
    if (m_offer != offer) {
        m_offer = std::move(offer);
        Q_EMIT changed();
    }
}

/// Parts with the snapshots of modes that are gone, and takes back those of modes that have come back. Whether there
/// were any.
bool ModeContext::sortByModes() {
    const auto move = [this](ModeSnapshots& from, ModeSnapshots& to, bool exists) {
        bool isAny = false;
        for (const QString& id : from.keys()) {
            if ((m_engine.mode(id) != nullptr) == exists) {
                to.insert(id, from.take(id));
                isAny = true;
            }
        }
        return isAny;
    };
    const bool haveGone = move(m_snapshots, m_ofGoneModes, false);
    return move(m_ofGoneModes, m_snapshots, true) || haveGone;
}

/// Of a change of the snapshots, to the file and to whoever shows them.
void ModeContext::tell() {
    m_disk.post(m_path, [path = m_path, snapshots = m_snapshots] { JsonFile::write(path, encode(snapshots)); });
    if (m_offer) {
        const auto saved = m_snapshots.constFind(m_offer->mode.id);
        if (saved != m_snapshots.constEnd())
            m_offer->snapshot = fitting(*saved, m_offer->mode, m_engine);
    }
    Q_EMIT changed();
}

} // namespace fendrel
